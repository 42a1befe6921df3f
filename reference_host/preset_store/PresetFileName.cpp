#include "reference_host/preset_store/PresetFileName.h"

#include "host/utils/Utf8.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace ReferenceHost
{

namespace
{

constexpr std::size_t kLongestReadablePart = 40;

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The letters and digits of a text, runs of anything else as one hyphen.
std::string ReadablePart(std::string_view text)
{
    std::string readable;
    for (const char character : text)
    {
        const bool isUpper = character >= 'A' && character <= 'Z';
        const char lower = isUpper ? static_cast<char>(character - 'A' + 'a') : character;
        if (readable.size() == kLongestReadablePart)
            break;
        if ((lower >= 'a' && lower <= 'z') || IsDigit(lower))
            readable += lower;
        else if (!readable.empty() && readable.back() != '-')
            readable += '-';
    }
    if (!readable.empty() && readable.back() != '-')
        readable += '-';
    return readable;
}

/// FNV-1a with its 64-bit offset and prime.
std::uint64_t Checksum(std::string_view text)
{
    std::uint64_t sum = 0xCBF29CE484222325ULL;
    for (const char character : text)
        sum = (sum ^ static_cast<unsigned char>(character)) * 0x00000100000001B3ULL;
    return sum;
}

std::string ToHexadecimal(std::uint64_t number)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (unsigned shift = 64; shift > 0; shift -= 4)
        text += kDigits[(number >> (shift - 4)) & 0xFU];
    return text;
}

} // namespace

std::string MakePresetFileName(const OvxStringT& text)
{
    const std::string bytes = OvxUtils::ToUtf8(text);
    return ReadablePart(bytes) + ToHexadecimal(Checksum(bytes));
}

} // namespace ReferenceHost
