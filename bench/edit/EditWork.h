#pragma once

#include "bench/workload/StyleTree.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace Bench
{

/// The property that is written to all objects; most of them inherit it.
inline constexpr std::size_t kEditedProperty = 7;

/// What it becomes.
inline constexpr int kEditedValue = 4'242;

/// Folds what some of the objects show, and how many steps can be undone, into one number. `valueOf` answers
/// for an object by its index.
template <class ValueOf>
[[nodiscard]] double Sample(std::size_t objects, std::size_t steps, const ValueOf& valueOf)
{
    double sum = static_cast<double>(steps);
    for (const std::size_t object : {std::size_t{0}, objects / 2, objects - 1})
        sum = 3.0 * sum + static_cast<double>(valueOf(object));
    return sum;
}

} // namespace Bench
