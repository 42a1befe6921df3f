#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// @file
/// UTF-8 from and to text in units of 16 bits (UTF-16) or 32 bits (UTF-32): wide characters are the one or
/// the other, depending on the platform.

namespace ReferenceHost
{

/// What stands for everything that cannot be coded.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

inline constexpr char32_t kLastCodePoint = 0x10FFFF;

[[nodiscard]] constexpr bool IsSurrogate(char32_t value) noexcept
{
    return value >= 0xD800 && value <= 0xDFFF;
}

/// Reads one code point at `position` of UTF-8 text and moves `position` behind it.
///
/// Bytes that begin no valid sequence are taken together as far as they could have been the beginning of one,
/// and give one replacement character: the practice that the Unicode Standard recommends (chapter 3.9,
/// "U+FFFD Substitution of Maximal Subparts").
[[nodiscard]] char32_t DecodeUtf8(std::string_view utf8, std::size_t& position) noexcept;

/// Appends one code point; surrogates and values beyond the last code point as the replacement character.
void AppendUtf8(std::string& utf8, char32_t codePoint);

/// Reads one code point at `position` of text in `Unit`s and moves `position` behind it. A pair of surrogates
/// is one code point in 16-bit units only; whatever is no code point comes back as the replacement character.
template <class Unit>
[[nodiscard]] char32_t DecodeUnits(std::basic_string_view<Unit> text, std::size_t& position) noexcept
{
    const auto first = static_cast<char32_t>(text[position++]);
    if constexpr (sizeof(Unit) == 2)
    {
        const bool leads = first >= 0xD800 && first <= 0xDBFF;
        if (leads && position < text.size())
        {
            const auto second = static_cast<char32_t>(text[position]);
            if (second >= 0xDC00 && second <= 0xDFFF)
            {
                ++position;
                return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
            }
        }
    }
    return IsSurrogate(first) || first > kLastCodePoint ? kReplacementCharacter : first;
}

/// Appends one code point, as a pair of surrogates where `Unit` has 16 bits and one is not enough.
template <class Unit>
void AppendUnits(std::basic_string<Unit>& text, char32_t codePoint)
{
    if constexpr (sizeof(Unit) == 2)
    {
        if (codePoint > 0xFFFF)
        {
            text.push_back(static_cast<Unit>(0xD800 + ((codePoint - 0x10000) >> 10)));
            text.push_back(static_cast<Unit>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
            return;
        }
    }
    text.push_back(static_cast<Unit>(codePoint));
}

// Both take the text for ASCII first, which nearly all names and identifiers are: a loop without a branch
// (the benchmark style_list_whole, four fifths of whose text is addresses and numbers).

template <class Unit>
[[nodiscard]] std::string EncodeUtf8(std::basic_string_view<Unit> text)
{
    std::string utf8(text.size(), '\0');
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        bits |= static_cast<std::uint32_t>(text[i]);
        utf8[i] = static_cast<char>(text[i]);
    }
    if (bits < 0x80)
        return utf8;

    utf8.clear();
    for (std::size_t position = 0; position < text.size();)
        AppendUtf8(utf8, DecodeUnits(text, position));
    return utf8;
}

template <class Unit>
[[nodiscard]] std::basic_string<Unit> DecodeUtf8(std::string_view utf8)
{
    std::basic_string<Unit> text(utf8.size(), Unit());
    std::uint8_t bits = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i)
    {
        const auto byte = static_cast<std::uint8_t>(utf8[i]);
        bits |= byte;
        text[i] = byte;
    }
    if (bits < 0x80)
        return text;

    text.clear();
    for (std::size_t position = 0; position < utf8.size();)
        AppendUnits(text, DecodeUtf8(utf8, position));
    return text;
}

} // namespace ReferenceHost
