#pragma once

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

/// The meaning of a byte.
[[nodiscard]] XmlByte ClassifyXmlByte(char byte) noexcept;

/// Tells whether a byte may stand in a name; bytes of longer sequences may.
[[nodiscard]] bool IsXmlNameByte(char byte) noexcept;

/// Tells whether a byte may begin a name; bytes of longer sequences may.
[[nodiscard]] bool IsXmlNameStartByte(char byte) noexcept;

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
