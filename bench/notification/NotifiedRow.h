#pragma once

#include <array>
#include <cstddef>

namespace Bench
{

/// Which name the listeners of a notification have.
enum class ListenedName
{
    Notified, ///< The one that is notified.
    Others    ///< Other rows of the same object, in turn.
};

/// The rows of an object that can be notified; the first is.
inline constexpr std::array<const char*, 6> kNotifiedRows{"lineWidth", "lineColor", "lineDash",
                                                          "lineJoin",  "lineCap",   "lineArrow"};

/// The row that the listener of that number listens to.
constexpr std::size_t ListenedRow(ListenedName listened, std::size_t listener)
{
    return listened == ListenedName::Notified ? 0 : 1 + listener % (kNotifiedRows.size() - 1);
}

} // namespace Bench
