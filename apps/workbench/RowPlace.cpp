#include "apps/workbench/RowPlace.h"

#include "apps/workbench/QuotedNames.h"
#include "apps/workbench/UsageError.h"

#include <algorithm>
#include <string>

namespace Workbench
{
namespace
{

constexpr OvxStringViewT kWholeStyle = L"style";

std::vector<OvxStringT> NamesOf(const LoadedPanels& panels)
{
    std::vector<OvxStringT> names;
    for (const std::unique_ptr<Panel>& panel : panels)
        names.push_back(panel->GetDescription().name);
    return names;
}

/// The rows of a panel, as they are named everywhere.
std::string RowsOf(const PanelDescription& description)
{
    std::vector<OvxStringT> names;
    for (const RowDescription& row : description.rows)
        names.push_back(description.name + OvxStringViewT(L".") + row.identifier);
    return QuotedList(names);
}

} // namespace

OvxStringT RowPlace::GetIdentifier() const
{
    return row == nullptr ? OvxStringT(kWholeStyle) : row->identifier;
}

OvxStringT RowPlace::GetName() const
{
    const OvxStringT& name = panel->GetDescription().name;
    return row == nullptr ? name : name + OvxStringViewT(L".") + row->identifier;
}

bool RowPlace::IsStyleParent() const
{
    return row != nullptr && row->identifier == kWholeStyle &&
           panel->GetDescription().category == kWholeStyle;
}

RowPlace FindPanel(const LoadedPanels& panels, const OvxStringT& name)
{
    const auto found = std::find_if(panels.begin(), panels.end(),
                                    [&](const std::unique_ptr<Panel>& panel)
                                    { return panel->GetDescription().name == name; });
    if (found == panels.end())
        throw UsageError("there is no panel " + Quoted(name) + "; expected one of " +
                         QuotedList(NamesOf(panels)));
    return {found->get(), nullptr};
}

RowPlace FindRow(const LoadedPanels& panels, const OvxStringT& name)
{
    const RowPlace place = FindRowOrPanel(panels, name);
    if (place.row == nullptr)
        throw UsageError(Quoted(name) + " is a panel and no row; expected one of " +
                         RowsOf(place.panel->GetDescription()));
    return place;
}

RowPlace FindRowOrPanel(const LoadedPanels& panels, const OvxStringT& name)
{
    const OvxStringViewT text = name;
    const std::size_t point = text.find(L'.');
    RowPlace place = FindPanel(panels, OvxStringT(text.substr(0, point)));
    if (point == OvxStringViewT::npos)
        return place;

    const PanelDescription& description = place.panel->GetDescription();
    const OvxStringViewT identifier = text.substr(point + 1);
    const auto found = std::find_if(description.rows.begin(), description.rows.end(),
                                    [&](const RowDescription& row) { return row.identifier == identifier; });
    if (found == description.rows.end())
        throw UsageError("there is no row " + Quoted(name) + "; expected one of " + RowsOf(description));
    place.row = &*found;
    return place;
}

} // namespace Workbench
