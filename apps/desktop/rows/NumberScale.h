#pragma once

#include "apps/workbench/PanelDescription.h"

#include <QString>

namespace Desktop
{

/// How a row's number is shown: in the unit of its range.
struct NumberScale
{
    double valuesPerUnit = 1; ///< How many of the value's own scale make one of the unit.
    int decimals = 0;
    double step = 1; ///< What one click or one pixel of a drag changes, in the unit.
    QString unit;    ///< As it is written: "mm".
};

/// The scale of a row with a number control.
[[nodiscard]] NumberScale ScaleOf(const Workbench::RowDescription& row);

} // namespace Desktop
