#pragma once

#include <array>
#include <cstddef>

namespace Bench
{

/// The names of the rows that every contender has, of which one is read and written.
inline constexpr std::array<const char*, 9> kOutlineRows{
    "lineType", "lineColor", "lineWidth",      "lineTransparency", "lineDash",
    "lineJoin", "lineCap",   "lineStartArrow", "lineEndArrow"};

/// Where the row is that is read and written.
inline constexpr std::size_t kWidthRow = 2;

} // namespace Bench
