#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace Bench
{

/// The named styles that every contender builds in its own way: those that a list is made of, which inherit
/// from each other in chains of four, and after each eighth of them one of another category. One in the
/// middle, the second of its chain, is edited and wants a parent.
class NamedStyles
{
public:
    /// That many of the category that is listed.
    explicit NamedStyles(std::size_t listed) : count(listed) {}

    [[nodiscard]] std::size_t Count() const { return count; }

    /// The style that a style inherits from: the one before it in its chain.
    [[nodiscard]] static std::optional<std::size_t> ParentOf(std::size_t style)
    {
        constexpr std::size_t kChain = 4;
        return style % kChain == 0 ? std::nullopt : std::optional(style - 1);
    }

    /// Whether a style of another category comes behind this one.
    [[nodiscard]] static bool IsBeforeOther(std::size_t style) { return style % 8 == 7; }

    /// The style that is edited.
    [[nodiscard]] std::size_t Target() const { return count / 8 * 4 + 1; }

    [[nodiscard]] static std::string NameOf(std::size_t style) { return "Style " + std::to_string(style); }

    [[nodiscard]] static std::string NameOfOther(std::size_t style)
    {
        return "Other " + std::to_string(style);
    }

private:
    std::size_t count;
};

/// The list shows all that are offered up to this many, and else the first of them and the current one.
inline constexpr std::size_t kLongestList = 18;
inline constexpr std::size_t kShownOfMore = 9;

/// The rows of a list, folded into one number that depends on their order.
class RowSum
{
public:
    /// Takes the text of the next row.
    template <class Text>
    void Add(const Text& text)
    {
        std::uint64_t row = text.size();
        for (const auto character : text)
            row = row * 31 + static_cast<std::uint64_t>(character);
        sum += ++rows * (row % 1'000'003);
    }

    [[nodiscard]] double Get() const { return static_cast<double>(sum % 1'000'000'007); }

private:
    std::uint64_t rows = 0;
    std::uint64_t sum = 0;
};

} // namespace Bench
