#pragma once

#include "host/utils/OvxStringT.h"

#include <ostream>
#include <vector>

namespace PanelTests
{

/// A module, and what its panel must be.
struct PanelModuleCase
{
    struct Row
    {
        OvxStringT identifier;
        OvxStringT property;

        friend bool operator==(const Row&, const Row&) = default;
        friend void PrintTo(const Row& row, std::ostream* out);
    };

    OvxStringT module;
    OvxStringT className;
    OvxStringT presetCategory;
    std::vector<Row> rows; ///< In order.

    friend void PrintTo(const PanelModuleCase& expected, std::ostream* out);
};

/// The five panels, in order.
[[nodiscard]] std::vector<PanelModuleCase> AllModules();

} // namespace PanelTests
