#include "fuzz/Choices.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace Fuzz
{
namespace
{

constexpr std::size_t kLongestText = 40;
constexpr std::size_t kWideBytes = 4;
constexpr unsigned kBitsPerByte = 8;
constexpr unsigned char kWideMark = 0xFF;

} // namespace

std::uint8_t Choices::Byte()
{
    return AreLeft() ? static_cast<std::uint8_t>(bytes[place++]) : std::uint8_t{0};
}

std::size_t Choices::Below(std::size_t count)
{
    return count == 0 ? 0 : Byte() % count;
}

int Choices::Number()
{
    using Limits = std::numeric_limits<int>;
    constexpr std::array kEdges{0, -1, 1, 100, -100, 101, 32767, 65536, Limits::max(), Limits::min()};
    const std::uint8_t first = Byte();
    if (first < kEdges.size())
        return kEdges[first];
    if (first % 2 == 0)
        return first;
    return first * Byte() - Byte() * Byte();
}

OvxStringT Choices::Text()
{
    const std::string_view left = bytes.substr(place, kLongestText);
    const std::string_view text = left.substr(0, left.find('\0'));
    place = std::min(bytes.size(), place + text.size() + 1);
    return WideText(text);
}

std::string_view Choices::Rest()
{
    const std::string_view rest = bytes.substr(place);
    place = bytes.size();
    return rest;
}

OvxStringT WideText(std::string_view bytes)
{
    std::wstring text;
    for (std::size_t at = 0; at < bytes.size(); ++at)
    {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (byte != kWideMark || bytes.size() - at <= kWideBytes)
        {
            text += static_cast<wchar_t>(byte);
            continue;
        }
        std::uint32_t wide = 0;
        for (std::size_t digit = 0; digit < kWideBytes; ++digit)
            wide = (wide << kBitsPerByte) | static_cast<unsigned char>(bytes[++at]);
        text += static_cast<wchar_t>(wide);
    }
    return OvxStringT(text);
}

std::string_view TakePart(std::string_view& text, char separator)
{
    const std::size_t end = text.find(separator);
    const std::string_view part = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return part;
}

} // namespace Fuzz
