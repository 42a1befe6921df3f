#pragma once

#include "apps/workbench/Report.h"
#include "datasource/ActivePropertyState.h"
#include "host/utils/OvxStringT.h"

namespace Workbench
{

/// A value for a row, both as people write them.
struct Assignment
{
    OvxStringT row;   ///< The name of the panel and the identifier of the row: "fill.color".
    OvxStringT value; ///< See ParseRowValue(): "#3366cc", "0.5mm", "palette:Brand".
};

/// A colour for an entry of the palette, as people write it.
struct PaletteAssignment
{
    OvxStringT name;
    OvxStringT colour; ///< "#rgb", "#rrggbb" or the name of a colour.
};

/// What edits made of one row of one target.
///
/// The value may be the same before and after: then the state changed, or the link.
struct Change
{
    /// The id of an object, "defaults", "sheet:" and the name of a named style, or "palette:" and the name of
    /// a palette entry.
    OvxStringT id;

    OvxStringT property; ///< "fill.color"; "color" for a palette entry.
    ReportValue from; ///< Nothing where nothing set a value, or where the text of an object differed in it.
    ReportValue to;
    OvxStringT fromLink; ///< The palette entry that the colour referred to; empty without one.
    OvxStringT toLink;
    ActivePropertyState state = ActivePropertyState::None; ///< Now; None for a palette entry.
};

} // namespace Workbench
