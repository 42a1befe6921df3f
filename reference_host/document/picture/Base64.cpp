#include "reference_host/document/picture/Base64.h"

#include "reference_host/document/XmlText.h"

#include <cstdint>

namespace ReferenceHost
{

namespace
{

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

} // namespace

std::string DecodeBase64(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    int count = 0;
    for (const char character : text)
    {
        if (IsXmlBlank(character))
            continue;
        const std::size_t value = kAlphabet.find(character);
        if (value == std::string_view::npos)
            break;
        bits = (bits << 6U) | static_cast<std::uint32_t>(value);
        count += 6;
        if (count < 8)
            continue;
        count -= 8;
        bytes.push_back(static_cast<char>((bits >> static_cast<unsigned>(count)) & 0xFFU));
    }
    return bytes;
}

} // namespace ReferenceHost
