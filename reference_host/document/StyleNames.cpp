#include "reference_host/document/StyleNames.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>

namespace ReferenceHost
{

namespace
{

/// Tells whether a program would have encoded the character, at the beginning of a name or inside it.
bool IsEncodable(std::uint32_t codePoint, bool isFirst)
{
    if (codePoint < 0x20 || codePoint == 0x7F || !IsXmlCharacter(codePoint))
        return false;
    if (codePoint >= 0x80 || codePoint == '_' || codePoint == ':')
        return true;
    const char character = static_cast<char>(codePoint);
    return isFirst ? !IsXmlNameStartByte(character) : !IsXmlNameByte(character);
}

void AppendUtf8(std::string& text, std::uint32_t codePoint)
{
    const auto append = [&text](std::uint32_t byte)
    { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto appendRest = [&](unsigned shift) { append(0x80U | ((codePoint >> shift) & 0x3FU)); };
    if (codePoint < 0x80)
        return append(codePoint);
    if (codePoint < 0x800)
    {
        append(0xC0U | (codePoint >> 6U));
        return appendRest(0);
    }
    if (codePoint < 0x10000)
    {
        append(0xE0U | (codePoint >> 12U));
        appendRest(6);
        return appendRest(0);
    }
    append(0xF0U | (codePoint >> 18U));
    appendRest(12);
    appendRest(6);
    appendRest(0);
}

/// The length of an encoded character at the front of `text`, whose code goes to `codePoint`; 0 when there is
/// none.
std::size_t MeasureEncoded(std::string_view text, std::uint32_t& codePoint)
{
    constexpr std::size_t kMostDigits = 6;
    const std::size_t end = text.substr(0, kMostDigits + 2).find('_', 1);
    if (!text.starts_with('_') || end == std::string_view::npos || end == 1)
        return 0;
    const auto [stop, error] = std::from_chars(text.data() + 1, text.data() + end, codePoint, 16);
    return error == std::errc() && stop == text.data() + end ? end + 1 : 0;
}

/// The first and last of the characters beyond ASCII that a name may hold everywhere.
struct NameRange
{
    std::uint32_t first;
    std::uint32_t last;
};

constexpr std::array<NameRange, 12> kNameRanges{{{0xC0, 0xD6},
                                                 {0xD8, 0xF6},
                                                 {0xF8, 0x2FF},
                                                 {0x370, 0x37D},
                                                 {0x37F, 0x1FFF},
                                                 {0x200C, 0x200D},
                                                 {0x2070, 0x218F},
                                                 {0x2C00, 0x2FEF},
                                                 {0x3001, 0xD7FF},
                                                 {0xF900, 0xFDCF},
                                                 {0xFDF0, 0xFFFD},
                                                 {0x10000, 0xEFFFF}}};

/// The code point of the sequence at the front of `text`, whose length is `length`.
std::uint32_t CodePointOf(std::string_view text, std::size_t length)
{
    const auto byte = [&](std::size_t place)
    { return static_cast<std::uint32_t>(static_cast<unsigned char>(text[place])); };
    if (length == 1)
        return byte(0);
    std::uint32_t codePoint = byte(0) & (0xFFU >> (length + 1));
    for (std::size_t place = 1; place < length; ++place)
        codePoint = (codePoint << 6U) | (byte(place) & 0x3FU);
    return codePoint;
}

/// Tells whether a character is written as its code: what no name of XML holds, and the underscore.
bool NeedsEncoding(std::uint32_t codePoint, bool isFirst)
{
    if (!IsEncodable(codePoint, isFirst))
        return false;
    const auto holds = [&](const NameRange& range)
    { return range.first <= codePoint && codePoint <= range.last; };
    return codePoint < 0x80 || std::ranges::none_of(kNameRanges, holds);
}

std::string HexOf(std::uint32_t codePoint)
{
    std::array<char, 8> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), codePoint, 16);
    return {digits.data(), end};
}

} // namespace

std::string EncodeStyleName(const OvxStringT& name)
{
    const std::string plain = OvxUtils::ToUtf8(name);
    std::string encoded;
    for (std::size_t place = 0; place < plain.size();)
    {
        const std::string_view rest = std::string_view(plain).substr(place);
        const std::size_t length = std::max<std::size_t>(MeasureMultibyte(rest), 1);
        const std::uint32_t codePoint = CodePointOf(rest, length);
        if (NeedsEncoding(codePoint, place == 0))
            encoded.append("_").append(HexOf(codePoint)).append("_");
        else
            encoded.append(rest.substr(0, length));
        place += length;
    }
    return encoded;
}

bool CanBeSavedAsName(const OvxStringT& name)
{
    const std::string plain = OvxUtils::ToUtf8(name);
    for (std::size_t place = 0; place < plain.size();)
    {
        const std::string_view rest = std::string_view(plain).substr(place);
        const std::size_t length = std::max<std::size_t>(MeasureMultibyte(rest), 1);
        if (!IsXmlCharacter(CodePointOf(rest, length)))
            return false;
        place += length;
    }
    // What is no character became another one.
    return OvxUtils::FromUtf8(plain) == name;
}

OvxStringT DecodeStyleName(std::string_view encoded)
{
    std::string decoded;
    decoded.reserve(encoded.size());
    while (!encoded.empty())
    {
        std::uint32_t codePoint = 0;
        const std::size_t length = MeasureEncoded(encoded, codePoint);
        if (length != 0 && IsEncodable(codePoint, decoded.empty()))
        {
            AppendUtf8(decoded, codePoint);
            encoded.remove_prefix(length);
            continue;
        }
        // Nothing that is encoded begins before the next underscore.
        const std::string_view plain = encoded.substr(0, encoded.find('_', 1));
        decoded += plain;
        encoded.remove_prefix(plain.size());
    }
    return OvxUtils::FromUtf8(decoded);
}

} // namespace ReferenceHost
