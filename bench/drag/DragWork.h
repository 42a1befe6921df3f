#pragma once

#include <cstddef>

namespace Bench
{

/// What a drag writes to.
enum class Dragged
{
    Objects, ///< All objects that are selected.
    Defaults ///< What the objects that are made next are to look like.
};

/// How many objects are dragged.
inline constexpr std::size_t kDraggedObjects = 100;

/// The property that a drag writes.
inline constexpr std::size_t kDraggedProperty = 11;

/// The value of a write, by its number from 1.
[[nodiscard]] constexpr int DraggedValue(std::size_t write)
{
    return static_cast<int>(write * 3);
}

} // namespace Bench
