#include "apps/desktop/rows/NumberScale.h"

#include "apps/desktop/WindowText.h"
#include "apps/workbench/RowValues.h"

#include <cmath>

namespace Desktop
{

NumberScale ScaleOf(const Workbench::RowDescription& row)
{
    const Workbench::RowUnit unit = Workbench::UnitOf(row);
    // As many as tell the row's values apart.
    const int decimals = static_cast<int>(std::ceil(std::log10(unit.valuesPerUnit)));
    const bool isMetric = unit.name == L"mm" || unit.name == L"cm";
    return {unit.valuesPerUnit, decimals, isMetric ? 0.1 : 1, ToQString(unit.name)};
}

} // namespace Desktop
