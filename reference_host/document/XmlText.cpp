#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>

namespace ReferenceHost
{

namespace
{

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
