#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace Bench
{

/// How the values of the objects' styles relate.
enum class Values
{
    Hashed,  ///< Each style sets properties and values of its own.
    Agreeing ///< All styles of one level set the same properties to the same values.
};

/// The styles that every contender builds in its own way: four levels of inheritance, of 1, 3, 10 and N
/// styles, with 40 properties. The root sets them all, each style below it about a quarter. What is set, and
/// to what, comes from a fixed hash.
class StyleTree
{
public:
    static constexpr std::size_t kLevels = 4;
    static constexpr std::size_t kObjectLevel = kLevels - 1;
    static constexpr std::size_t kProperties = 40;

    /// A tree with `objects` styles on the last level.
    StyleTree(std::size_t objects, Values values) : objectCount(objects), kind(values) {}

    /// How many styles a level has.
    [[nodiscard]] std::size_t CountAt(std::size_t level) const;

    /// The index in the level above of the style that this one inherits from; `level` is not 0.
    [[nodiscard]] std::size_t ParentOf(std::size_t level, std::size_t index) const;

    /// What a style sets itself: a whole number from 0 to 999,999, or nothing.
    [[nodiscard]] std::optional<int> OwnValue(std::size_t level, std::size_t index,
                                              std::size_t property) const;

    /// "Property00" to "Property39".
    [[nodiscard]] static std::string NameOf(std::size_t property);

private:
    std::size_t objectCount;
    Values kind;
};

/// A hash of a number that is the same everywhere and always.
[[nodiscard]] std::uint64_t FixedHash(std::uint64_t number);

} // namespace Bench
