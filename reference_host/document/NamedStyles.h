#pragma once

#include "reference_host/document/PropertyMappings.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/Warnings.h"
#include "reference_host/style_model/NamedStyleSheet.h"

#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <memory>
#include <unordered_map>

namespace ReferenceHost
{

/// What people see of a named style.
struct StyleAppearance
{
    OvxStringT displayName; ///< Empty without one.
    bool isHidden = false;
};

/// What people see of the named styles, by their names in the sheet.
using StyleAppearances = std::unordered_map<OvxStringT, StyleAppearance>;

/// Fills the default style with what the file sets there; null sets nothing.
void FillDefaultStyle(Styles::Style& defaults, const StyleRecord* record, const PropertyMappings& table,
                      Warnings& warnings);

/// A new style of a category without values, as named styles are: a whole style has all its substyles. Falls
/// back to `defaults`, the default style of the drawing, or to the substyle of that category in it.
[[nodiscard]] std::unique_ptr<Styles::Style>
MakeNamedStyle(const Styles::PropertyKey& category, const PropertyMappings& table, Styles::Style& defaults);

/// Makes a named style fall back to the default style of a drawing, or to the substyle of its category there.
void LetFallBack(Styles::Style& style, Styles::Style& defaults);

/// Turns the named graphic styles of the file into styles of a sheet.
///
/// A style of a category that nobody here knows is left out and reported. Names are decoded; where two become
/// the same, the later keeps its name as it is in the file, and that is reported.
class NamedStyleBuilder
{
public:
    /// Borrows everything. `defaults` is complete.
    NamedStyleBuilder(const PropertyMappings& properties, Styles::Style& defaultStyle,
                      NamedStyleSheet& target, StyleAppearances& appearanceTarget, Warnings& reports);

    /// Adds all named graphic styles to the sheet in the order of the file, links them, and sets their
    /// values. Afterwards each record points to its style.
    void Build(StyleCatalogue& catalogue);

private:
    void AddToSheet(StyleRecord& record);
    [[nodiscard]] OvxStringT PickName(const StyleRecord& record);
    void Complete(const StyleRecord& record);

    const PropertyMappings& table;
    Styles::Style& defaults;
    NamedStyleSheet& sheet;
    StyleAppearances& appearances;
    Warnings& warnings;
};

} // namespace ReferenceHost
