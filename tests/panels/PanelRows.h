#pragma once

#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <ostream>
#include <vector>

namespace PanelTests
{

/// A row that a panel must have, and two values of its kind to try it with.
struct PanelRowSample
{
    OvxStringT module;
    OvxStringT className;
    OvxStringT category;
    OvxStringT key;
    OvxStringT property;
    OvxUtils::Any value;
    OvxUtils::Any otherValue;

    friend void PrintTo(const PanelRowSample& sample, std::ostream* out);
};

/// Every row of the panels that show properties, in the order of the panels.
[[nodiscard]] std::vector<PanelRowSample> AllRows();

} // namespace PanelTests
