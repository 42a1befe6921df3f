#include "reference_host/utils/Utf8Coding.h"

#include <array>

namespace ReferenceHost
{

namespace
{

/// How a sequence goes on after its first byte.
struct SequenceShape
{
    std::uint8_t firstLow; ///< The first bytes of this shape.
    std::uint8_t firstHigh;
    std::uint8_t secondLow;  ///< The second bytes it allows; narrower than the rest where a shorter form or a
    std::uint8_t secondHigh; ///< surrogate or a value beyond the last code point would begin.
    std::uint8_t length;     ///< In bytes.
    std::uint8_t firstBits;  ///< The bits of the first byte that belong to the value.
};

/// Table 3-7 of the Unicode Standard, "Well-Formed UTF-8 Byte Sequences", without ASCII.
constexpr std::array<SequenceShape, 8> kShapes{{
    {0xC2, 0xDF, 0x80, 0xBF, 2, 0x1F},
    {0xE0, 0xE0, 0xA0, 0xBF, 3, 0x0F},
    {0xE1, 0xEC, 0x80, 0xBF, 3, 0x0F},
    {0xED, 0xED, 0x80, 0x9F, 3, 0x0F},
    {0xEE, 0xEF, 0x80, 0xBF, 3, 0x0F},
    {0xF0, 0xF0, 0x90, 0xBF, 4, 0x07},
    {0xF1, 0xF3, 0x80, 0xBF, 4, 0x07},
    {0xF4, 0xF4, 0x80, 0x8F, 4, 0x07},
}};

const SequenceShape* FindShape(std::uint8_t first) noexcept
{
    for (const SequenceShape& shape : kShapes)
    {
        if (first >= shape.firstLow && first <= shape.firstHigh)
            return &shape;
    }
    return nullptr;
}

char Byte(char32_t value) noexcept
{
    return static_cast<char>(static_cast<std::uint8_t>(value));
}

} // namespace

char32_t DecodeUtf8(std::string_view utf8, std::size_t& position) noexcept
{
    const auto first = static_cast<std::uint8_t>(utf8[position++]);
    if (first < 0x80)
        return first;

    const SequenceShape* shape = FindShape(first);
    if (shape == nullptr)
        return kReplacementCharacter;

    char32_t value = first & shape->firstBits;
    for (std::uint8_t i = 1; i < shape->length; ++i)
    {
        if (position == utf8.size())
            return kReplacementCharacter;
        const auto next = static_cast<std::uint8_t>(utf8[position]);
        if (next < (i == 1 ? shape->secondLow : 0x80) || next > (i == 1 ? shape->secondHigh : 0xBF))
            return kReplacementCharacter;
        value = (value << 6) | (next & 0x3FU);
        ++position;
    }
    return value;
}

void AppendUtf8(std::string& utf8, char32_t codePoint)
{
    if (IsSurrogate(codePoint) || codePoint > kLastCodePoint)
        codePoint = kReplacementCharacter;

    const auto trail = [codePoint](int shift) { return Byte(0x80 | ((codePoint >> shift) & 0x3F)); };
    if (codePoint < 0x80)
        utf8 += Byte(codePoint);
    else if (codePoint < 0x800)
        (utf8 += Byte(0xC0 | (codePoint >> 6))) += trail(0);
    else if (codePoint < 0x10000)
        ((utf8 += Byte(0xE0 | (codePoint >> 12))) += trail(6)) += trail(0);
    else
        (((utf8 += Byte(0xF0 | (codePoint >> 18))) += trail(12)) += trail(6)) += trail(0);
}

} // namespace ReferenceHost
