// Panel descriptions, and drawings with the categories that they bring.

#include "apps/workbench/PanelDescription.h"
#include "apps/workbench/PanelDescriptionReader.h"
#include "apps/workbench/RowValues.h"
#include "apps/workbench/TargetHandover.h"
#include "fuzz/Demand.h"
#include "fuzz/FuzzTarget.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/document/Drawing.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace
{

using Workbench::PanelDescription;
using Workbench::RowDescription;

std::optional<PanelDescription> Read(std::string_view text)
{
    try
    {
        return Workbench::ParsePanelDescription(text, "input.panel.xml");
    }
    catch (const ReferenceHost::DocumentError&)
    {
        return std::nullopt;
    }
}

void DemandRow(const RowDescription& row)
{
    using Workbench::ControlKind;
    const bool isNumber = row.control == ControlKind::Number;
    Fuzz::Demand(row.range.has_value() == isNumber, "the number control alone has a range");
    Fuzz::Demand(!isNumber || row.range->minimum <= row.range->maximum, "a range is not turned over");
    const bool hasChoices = row.control == ControlKind::Choice || row.control == ControlKind::Switch;
    Fuzz::Demand(!row.choices.empty() == hasChoices, "choices and switches alone have choices");
    Fuzz::Demand(!row.identifier.empty() && !row.property.empty(), "a row has an identifier and a property");
}

void DemandRows(const std::vector<RowDescription>& rows)
{
    std::set<OvxStringT> identifiers;
    std::set<OvxStringT> properties;
    for (const RowDescription& row : rows)
    {
        DemandRow(row);
        identifiers.insert(row.identifier);
        properties.insert(row.property);
    }
    Fuzz::Demand(identifiers.size() == rows.size() && properties.size() == rows.size(),
                 "each row has an identifier and a property of its own");
    Fuzz::Demand(std::is_sorted(rows.begin(), rows.end(),
                                [](const RowDescription& left, const RowDescription& right)
                                { return left.order < right.order; }),
                 "rows stand in their order");
}

} // namespace

void Fuzz::RunInput(std::string_view input)
{
    const std::optional<PanelDescription> panel = Read(input);
    if (!panel)
        return;
    DemandRows(panel->rows);
    Demand(panel->module.Wide().find_first_of(L"/\\") == std::wstring::npos,
           "a module is named without folders");
    if (!panel->ownCategory || Workbench::TargetHandover::IsHostCategory(panel->ownCategory->name))
        return;
    const auto drawing = ReferenceHost::Drawing::CreateBlank(panel->ownCategory->mappings);
    std::vector<std::string> lost;
    Demand(!drawing->Serialise(lost).empty(), "a drawing with the category of a panel can be saved");
}
