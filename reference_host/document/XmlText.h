#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ReferenceHost
{

/// What a byte can mean where characters of an XML text stand.
enum class XmlByte : std::uint8_t
{
    Plain,     ///< Nothing: an ordinary character or blank.
    Less,      ///< '<'
    Ampersand, ///< '&'
    Bracket,   ///< ']', which may begin the forbidden "]]>".
    Quote,     ///< '"' or '\''
    Multibyte, ///< The first byte of a longer sequence, or one that cannot begin any.
    Forbidden  ///< A control character that XML does not allow.
};

/// What a byte can be in a name; bytes of longer sequences can be anything.
enum class XmlNameByte : std::uint8_t
{
    No,
    Inside,
    Start
};

/// The place of a byte in a table of all 256.
constexpr std::size_t IndexOf(char byte)
{
    return static_cast<unsigned char>(byte);
}

/// The meaning of each byte. It stands here because every byte of a drawing is looked up in it.
inline constexpr std::array<XmlByte, 256> kXmlBytes = []
{
    std::array<XmlByte, 256> meanings{};
    for (std::size_t byte = 0; byte < 0x20; ++byte)
        meanings[byte] = XmlByte::Forbidden;
    for (const char blank : {'\t', '\n', '\r'})
        meanings[IndexOf(blank)] = XmlByte::Plain;
    for (std::size_t byte = 0x80; byte < 0x100; ++byte)
        meanings[byte] = XmlByte::Multibyte;
    meanings[IndexOf('<')] = XmlByte::Less;
    meanings[IndexOf('&')] = XmlByte::Ampersand;
    meanings[IndexOf(']')] = XmlByte::Bracket;
    meanings[IndexOf('"')] = XmlByte::Quote;
    meanings[IndexOf('\'')] = XmlByte::Quote;
    return meanings;
}();

/// What each byte can be in a name.
inline constexpr std::array<XmlNameByte, 256> kXmlNameBytes = []
{
    std::array<XmlNameByte, 256> bytes{};
    for (std::size_t byte = 0x80; byte < 0x100; ++byte)
        bytes[byte] = XmlNameByte::Start;
    for (std::size_t letter = 0; letter < 26; ++letter)
        bytes[IndexOf('a') + letter] = bytes[IndexOf('A') + letter] = XmlNameByte::Start;
    bytes[IndexOf('_')] = bytes[IndexOf(':')] = XmlNameByte::Start;
    for (std::size_t digit = 0; digit < 10; ++digit)
        bytes[IndexOf('0') + digit] = XmlNameByte::Inside;
    bytes[IndexOf('-')] = bytes[IndexOf('.')] = XmlNameByte::Inside;
    return bytes;
}();

/// Tells of each byte whether it may stand in a name and is nothing else: no colon, and no part of a longer
/// sequence.
inline constexpr std::array<bool, 256> kPlainXmlNameBytes = []
{
    std::array<bool, 256> bytes{};
    for (std::size_t byte = 0; byte < 0x80; ++byte)
        bytes[byte] = kXmlNameBytes[byte] != XmlNameByte::No;
    bytes[IndexOf(':')] = false;
    return bytes;
}();

/// The meaning of a byte.
[[nodiscard]] constexpr XmlByte ClassifyXmlByte(char byte) noexcept
{
    return kXmlBytes[IndexOf(byte)];
}

/// Tells whether a byte may stand in a name.
[[nodiscard]] constexpr bool IsXmlNameByte(char byte) noexcept
{
    return kXmlNameBytes[IndexOf(byte)] != XmlNameByte::No;
}

/// Tells whether a byte may stand in a name and is no colon and no part of a longer sequence.
[[nodiscard]] constexpr bool IsPlainXmlNameByte(char byte) noexcept
{
    return kPlainXmlNameBytes[IndexOf(byte)];
}

/// Tells whether a byte may begin a name.
[[nodiscard]] constexpr bool IsXmlNameStartByte(char byte) noexcept
{
    return kXmlNameBytes[IndexOf(byte)] == XmlNameByte::Start;
}

/// Tells whether a byte is one of the four blanks of XML.
[[nodiscard]] constexpr bool IsXmlBlank(char byte) noexcept
{
    return byte == ' ' || byte == '\n' || byte == '\t' || byte == '\r';
}

/// Tells whether XML allows a character.
[[nodiscard]] bool IsXmlCharacter(std::uint32_t codePoint) noexcept;

/// The length of the valid UTF-8 sequence of two to four bytes at the front of `text`; 0 when there is none,
/// also for overlong forms, surrogates and what lies beyond U+10FFFF.
[[nodiscard]] std::size_t MeasureMultibyte(std::string_view text) noexcept;

/// The line of the byte at `offset`, counted from 1.
[[nodiscard]] std::size_t LineOf(std::string_view text, std::size_t offset) noexcept;

/// The text without the blanks at both ends.
[[nodiscard]] std::string_view TrimXmlBlanks(std::string_view text) noexcept;

/// The text without the byte order mark that may stand in front of it.
[[nodiscard]] std::string_view WithoutByteOrderMark(std::string_view text) noexcept;

} // namespace ReferenceHost
