#pragma once

#include "tests/model/Vocabulary.h"

#include <optional>
#include <string>
#include <vector>

/// @file
/// The styles that random sequences play with, the same on both sides, and how sequences name them.

namespace LibraryModel
{

/// A style that stands for itself all along.
struct PooledStyle
{
    std::string name;
    std::string category;
    std::string sheetName; ///< Under which a sheet lists it, when it does.
};

/// In an order in which parents come before children: a style may inherit from earlier ones alone.
[[nodiscard]] const std::vector<PooledStyle>& StylePool();

/// How many fill styles the pool begins with.
inline constexpr int kPooledFills = 24;

/// The place of a name in the pool.
[[nodiscard]] std::size_t PoolIndex(const std::string& name);

/// "S1" or, for its substyle, "S1.fill"; the empty text is null.
struct StyleRef
{
    std::string name;
    std::optional<Key> substyle;

    [[nodiscard]] std::string Text() const
    {
        if (name.empty())
            return "null";
        return substyle.has_value() ? name + "." + TextOf(*substyle) : name;
    }
};

using StyleRefs = std::vector<StyleRef>;

} // namespace LibraryModel
