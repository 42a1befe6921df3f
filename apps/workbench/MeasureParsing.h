#pragma once

#include "host/utils/OvxStringViewT.h"

#include <optional>

namespace Workbench
{

/// A number as people write it, and what stands behind it.
struct Measure
{
    double number = 0;
    OvxStringViewT unit; ///< Borrowed from the text; empty without one.
};

/// Reads a decimal number with a sign or without, and a unit behind it, perhaps after blanks: "-0.5 mm",
/// "12". None for anything else; there are no exponents, and numbers that no double holds are none.
[[nodiscard]] std::optional<Measure> ParseMeasure(OvxStringViewT text);

/// The nearest whole number, halves away from zero; none when an int cannot hold it.
[[nodiscard]] std::optional<int> RoundToInt(double number);

} // namespace Workbench
