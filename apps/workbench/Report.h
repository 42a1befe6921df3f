#pragma once

#include "apps/workbench/PanelDescription.h"
#include "datasource/ActivePropertyState.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/preset_store/PresetPicture.h"

#include <cstddef>
#include <optional>
#include <variant>
#include <vector>

namespace Workbench
{

/// A value in words: nothing, a number in the scale of its kind, or a text; a colour is "#rrggbb".
using ReportValue = std::variant<std::monostate, int, OvxStringT>;

/// Where a row's value comes from.
struct RowOrigin
{
    enum class Kind
    {
        None,   ///< Nothing sets a value, or the targets differ in it.
        Local,  ///< The targets themselves.
        Style,  ///< A style that they inherit from.
        Default ///< What the drawing falls back to.
    };

    Kind kind = Kind::None;
    OvxStringT style; ///< The name of the style for Style; else empty.

    friend bool operator==(const RowOrigin&, const RowOrigin&) = default;
};

/// A line of a panel with what it shows.
struct RowReport
{
    const RowDescription* description = nullptr; ///< Never null; lives as long as the panel.
    ReportValue value;                           ///< Nothing when ambiguous and when nothing sets a value.
    bool isAmbiguous = false;
    ActivePropertyState state = ActivePropertyState::None;
    RowOrigin origin;
    OvxStringT link;    ///< The palette entry that a colour refers to; empty without one.
    OvxStringT image;   ///< The name of the picture for the state.
    OvxStringT tooltip; ///< The state in words, in the language in force.
};

/// A bound property of a panel by its name: a number or a text.
struct PropertyReport
{
    OvxStringT name;
    ReportValue value; ///< Never nothing.
};

/// What a panel shows.
struct PanelReport
{
    const PanelDescription* description = nullptr; ///< Never null; lives as long as the panel.
    OvxStringT title;                              ///< As the library gives it, every "&" doubled.
    bool hasTargets = false;
    bool isDefaults = false;
    OvxStringT styleName; ///< The first target's name in the sheet; empty for an object's own style.
    std::vector<PropertyReport> properties; ///< Those that are numbers or texts, in order of registration.
    std::vector<RowReport> rows;            ///< In the order of the description.
};

/// A preset of a panel.
struct PresetReport
{
    OvxStringT name;
    std::optional<ReferenceHost::PresetPicture> picture; ///< None when it cannot be read any more.
};

/// A selected object.
struct TargetReport
{
    OvxStringT id;
    OvxStringT name; ///< Empty without one.
    OvxStringT kind;
    OvxStringT style;                ///< The named style; empty without one.
    std::vector<OvxStringT> parents; ///< What the named style inherits from, nearest first.
    std::size_t units = 0;           ///< The paragraphs and runs of its text.
};

/// What panels show for a selection.
struct Report
{
    OvxStringT selector;
    std::vector<TargetReport> targets; ///< The selected objects; none for default styles and named styles.
    std::vector<PanelReport> panels;
};

} // namespace Workbench
