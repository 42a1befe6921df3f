#pragma once

#include "apps/workbench/Report.h"
#include "apps/workbench/StyleList.h"
#include "apps/workbench/StylePick.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <variant>
#include <vector>

namespace Cli
{

/// create-style made a style.
struct CreatedStyle
{
    OvxStringT name;
};

/// edit-style opened a style.
struct OpenedStyle
{
    OvxStringT name;
};

/// presets list found these.
struct ListedPresets
{
    OvxStringT panel;
    std::vector<Workbench::PresetReport> presets;
};

/// presets show read one.
struct ShownPreset
{
    OvxStringT panel;
    OvxStringT name;
    Workbench::PanelReport report;
};

/// presets add kept one.
struct AddedPreset
{
    OvxStringT panel;
    OvxStringT name;
    bool isReplaced = false; ///< It took the place of another of that name.
};

/// presets delete dropped one.
struct DeletedPreset
{
    OvxStringT panel;
    OvxStringT name;
};

/// What a command tells beside what it changes.
struct EditAnswer
{
    std::size_t line = 0; ///< The line of a script; 0 outside of one.

    /// A report for show, a list for style-list.
    std::variant<CreatedStyle, OpenedStyle, Workbench::Report, Workbench::StyleList, Workbench::Restyled,
                 ListedPresets, ShownPreset, AddedPreset, DeletedPreset>
        content;
};

} // namespace Cli
