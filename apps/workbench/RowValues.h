#pragma once

#include "apps/workbench/PanelDescription.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/Drawing.h"

namespace Workbench
{

/// Reads a value for a row as people write it.
///
/// | kind     | what is accepted                                                                        |
/// |----------|-----------------------------------------------------------------------------------------|
/// | colour   | "#rgb", "#rrggbb", the name of a colour in CSS, or "palette:NAME", which refers to an   |
/// |          | entry of the palette of `drawing`                                                       |
/// | length   | a number with mm, cm, in, pt or px (96 of them in an inch), or in the unit of the row   |
/// | font     | the same; without a unit in points                                                      |
/// | size     |                                                                                         |
/// | percent  | a whole number, with "%" or without                                                     |
/// | choice   | one of the values of the row                                                            |
/// | text     | the text as it is                                                                       |
///
/// Lengths are rounded to what the row holds, and numbers stay within the limits of the row.
///
/// @param rowName "fill.color", for errors.
/// @throws UsageError for anything else; it says what is accepted.
[[nodiscard]] OvxUtils::Any ParseRowValue(const RowDescription& row, const OvxStringT& rowName,
                                          const OvxStringT& text, const ReferenceHost::Drawing& drawing);

/// A unit, and how many of a row's own values make one of it: 100 hundredths of a millimetre for "mm".
struct RowUnit
{
    OvxStringViewT name;
    double valuesPerUnit = 1;
};

/// The unit of a row with numbers: that of its range, in which also a number without one is read.
[[nodiscard]] RowUnit UnitOf(const RowDescription& row);

/// Reads a colour as ParseRowValue() does, but no reference to the palette.
///
/// @param what what the colour is for, for errors.
/// @throws UsageError for anything else; it says what is accepted.
[[nodiscard]] CLR_COLORSPEC::Rgb ParsePlainColour(const OvxStringT& what, const OvxStringT& text);

} // namespace Workbench
