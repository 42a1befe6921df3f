#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>

namespace ReferenceHost
{

namespace
{

constexpr std::size_t Index(char byte)
{
    return static_cast<unsigned char>(byte);
}

constexpr std::array<XmlByte, 256> kMeanings = []
{
    std::array<XmlByte, 256> meanings{};
    for (std::size_t byte = 0; byte < 0x20; ++byte)
        meanings[byte] = XmlByte::Forbidden;
    for (const char blank : {'\t', '\n', '\r'})
        meanings[Index(blank)] = XmlByte::Plain;
    for (std::size_t byte = 0x80; byte < 0x100; ++byte)
        meanings[byte] = XmlByte::Multibyte;
    meanings[Index('<')] = XmlByte::Less;
    meanings[Index('&')] = XmlByte::Ampersand;
    meanings[Index(']')] = XmlByte::Bracket;
    meanings[Index('"')] = XmlByte::Quote;
    meanings[Index('\'')] = XmlByte::Quote;
    return meanings;
}();

enum class NameByte : std::uint8_t
{
    No,
    Inside,
    Start
};

constexpr std::array<NameByte, 256> kNameBytes = []
{
    std::array<NameByte, 256> bytes{};
    for (std::size_t byte = 0x80; byte < 0x100; ++byte)
        bytes[byte] = NameByte::Start;
    for (std::size_t letter = 0; letter < 26; ++letter)
        bytes[Index('a') + letter] = bytes[Index('A') + letter] = NameByte::Start;
    bytes[Index('_')] = bytes[Index(':')] = NameByte::Start;
    for (std::size_t digit = 0; digit < 10; ++digit)
        bytes[Index('0') + digit] = NameByte::Inside;
    bytes[Index('-')] = bytes[Index('.')] = NameByte::Inside;
    return bytes;
}();

/// A range of first bytes, and what must follow: the smallest and largest second byte rule out overlong
/// forms, surrogates and too large values.
struct Sequence
{
    unsigned char first;
    unsigned char last;
    unsigned char secondLow;
    unsigned char secondHigh;
    std::size_t length;
};

constexpr std::array<Sequence, 8> kSequences{{{0xC2, 0xDF, 0x80, 0xBF, 2},
                                              {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                              {0xE1, 0xEC, 0x80, 0xBF, 3},
                                              {0xED, 0xED, 0x80, 0x9F, 3},
                                              {0xEE, 0xEF, 0x80, 0xBF, 3},
                                              {0xF0, 0xF0, 0x90, 0xBF, 4},
                                              {0xF1, 0xF3, 0x80, 0xBF, 4},
                                              {0xF4, 0xF4, 0x80, 0x8F, 4}}};

} // namespace

XmlByte ClassifyXmlByte(char byte) noexcept
{
    return kMeanings[Index(byte)];
}

bool IsXmlNameByte(char byte) noexcept
{
    return kNameBytes[Index(byte)] != NameByte::No;
}

bool IsXmlNameStartByte(char byte) noexcept
{
    return kNameBytes[Index(byte)] == NameByte::Start;
}

bool IsXmlCharacter(std::uint32_t codePoint) noexcept
{
    if (codePoint < 0x20)
        return codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    return codePoint <= 0xD7FF || (codePoint >= 0xE000 && codePoint <= 0xFFFD) ||
           (codePoint >= 0x10000 && codePoint <= 0x10FFFF);
}

std::size_t MeasureMultibyte(std::string_view text) noexcept
{
    if (text.size() < 2)
        return 0;
    const auto first = static_cast<unsigned char>(text[0]);
    const auto second = static_cast<unsigned char>(text[1]);
    const auto* const sequence = std::ranges::find_if(kSequences, [first](const Sequence& each)
                                                      { return each.first <= first && first <= each.last; });
    if (sequence == kSequences.end() || text.size() < sequence->length)
        return 0;
    if (second < sequence->secondLow || second > sequence->secondHigh)
        return 0;
    const auto isContinuation = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
    const std::string_view rest = text.substr(2, sequence->length - 2);
    return std::ranges::all_of(rest, isContinuation) ? sequence->length : 0;
}

std::size_t LineOf(std::string_view text, std::size_t offset) noexcept
{
    const std::string_view before = text.substr(0, offset);
    return 1 + static_cast<std::size_t>(std::ranges::count(before, '\n'));
}

std::string_view TrimXmlBlanks(std::string_view text) noexcept
{
    while (!text.empty() && IsXmlBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsXmlBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view WithoutByteOrderMark(std::string_view text) noexcept
{
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return text.starts_with(kMark) ? text.substr(kMark.size()) : text;
}

} // namespace ReferenceHost
