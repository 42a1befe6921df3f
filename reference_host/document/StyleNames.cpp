#include "reference_host/document/StyleNames.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/XmlText.h"

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

} // namespace

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
        decoded += encoded.front();
        encoded.remove_prefix(1);
    }
    return OvxUtils::FromUtf8(decoded);
}

} // namespace ReferenceHost
