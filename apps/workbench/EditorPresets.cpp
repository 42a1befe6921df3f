// The presets that panels offer: what they hold, taking one, keeping one and dropping one.

#include "apps/workbench/EditorWorkings.h"
#include "apps/workbench/Gesture.h"
#include "apps/workbench/PanelDialogs.h"
#include "apps/workbench/PanelReading.h"
#include "apps/workbench/QuotedNames.h"
#include "apps/workbench/SettledAnswers.h"
#include "host/ui_list/WCmnUI_List.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <iterator>

namespace Workbench
{
namespace
{

bool OffersPresets(const Panel& panel)
{
    return !panel.GetDataSource().PresetCategoryName().empty();
}

/// The panel of that name, which offers presets.
RowPlace FindOfferingPanel(const LoadedPanels& panels, const OvxStringT& name)
{
    const RowPlace place = FindPanel(panels, name);
    if (OffersPresets(*place.panel))
        return place;
    std::vector<OvxStringT> names;
    for (const std::unique_ptr<Panel>& panel : panels)
    {
        if (OffersPresets(*panel))
            names.push_back(panel->GetDescription().name);
    }
    throw UsageError("the panel " + Quoted(name) + " has no presets; expected one of " + QuotedList(names));
}

std::vector<WCmnUI_ListItem> ReadItems(const RowPlace& place)
{
    const auto list = place.GetBoundNames().Read<WCmnUI_List>(L"PresetList");
    std::vector<WCmnUI_ListItem> items;
    for (std::size_t position = 0; position < list.GetCount(); ++position)
        items.push_back(*list.GetItem(position));
    return items;
}

WCmnUI_ListItem FindItem(const RowPlace& place, const OvxStringT& name)
{
    const std::vector<WCmnUI_ListItem> items = ReadItems(place);
    const auto found = std::ranges::find(items, name, &WCmnUI_ListItem::GetText);
    if (found != items.end())
        return *found;
    std::vector<OvxStringT> names;
    std::ranges::transform(items, std::back_inserter(names), &WCmnUI_ListItem::GetText);
    throw UsageError("the panel " + OvxUtils::ToUtf8(place.GetName()) + " has no preset " + Quoted(name) +
                     "; expected " +
                     (names.empty() ? "nothing, as it has none" : "one of " + QuotedList(names)));
}

bool IsLocal(const RowPlace& row)
{
    const auto origin =
        ParseOrigin(row.GetBoundNames().Read<OvxStringT>(row.row->property + OvxStringT(kOriginSuffix)));
    return origin && origin->kind == RowOrigin::Kind::Local;
}

/// A preset may name what another drawing defines: here it would mean nothing.
void DemandDefinitions(const Editor::Workings& workings, const RowPlace& place, const OvxStringT& preset)
{
    const PanelDescription& description = place.panel->GetDescription();
    for (const RowDescription& row : description.rows)
    {
        const auto defined = workings.session.GetStyles().DefinedNames(description, row, workings.selection);
        if (!defined || !IsLocal({place.panel, &row}))
            continue;
        const OvxUtils::Any value = place.GetBoundNames().ReadAny(row.property);
        const auto* name = value.TryGet<OvxStringT>();
        if (name == nullptr || name->empty() ||
            std::find(defined->begin(), defined->end(), *name) != defined->end())
            continue;
        throw EditError("the preset " + Quoted(preset) + " cannot be applied: it names the " +
                        OvxUtils::ToUtf8(row.identifier) + " " + Quoted(*name) +
                        ", which the drawing does not define");
    }
}

/// @throws EditError when a preset could not be kept or dropped.
void DemandNoFailure(Session& session)
{
    const std::string failure = session.TakePresetFailure();
    if (!failure.empty())
        throw EditError(failure);
}

} // namespace

std::vector<PresetReport> Editor::ListPresets(const OvxStringT& panel)
{
    const RowPlace place = FindOfferingPanel(workings->session.GetPanels(), panel);
    std::vector<PresetReport> presets;
    for (const WCmnUI_ListItem& item : ReadItems(place))
    {
        const auto* picture = item.GetPicture().TryGet<ReferenceHost::PresetPicture>();
        presets.push_back({item.GetText(), picture == nullptr ? std::nullopt : std::optional(*picture)});
    }
    return presets;
}

PanelReport Editor::DescribePreset(const OvxStringT& panel, const OvxStringT& name)
{
    const RowPlace place = FindOfferingPanel(workings->session.GetPanels(), panel);
    workings->DemandNoGroup("looking at a preset");
    const WCmnUI_ListItem item = FindItem(place, name);
    PanelReport report;
    {
        // The default styles take it, which every drawing has; what is not kept is taken back.
        const Gesture gesture(workings->history, OvxStringT());
        const HandedTargets handed =
            workings->session.GetStyles().HandIn(place.panel->GetDataSource(), place.panel->GetDescription(),
                                                 {L"defaults", SelectorScope::Defaults, {}, {}});
        place.GetBoundNames().Write<WCmnUI_ListItem>(L"CurrentPreset", item);
        report = ReadPanel(place.GetBoundNames(), place.panel->GetDescription(), handed);
        // None: what was only looked at is not what a command on the selected preset would be about.
        place.GetBoundNames().Write<WCmnUI_ListItem>(L"CurrentPreset", WCmnUI_ListItem());
    }
    workings->Refresh();
    std::erase_if(report.rows,
                  [](const RowReport& row) { return row.origin.kind != RowOrigin::Kind::Local; });
    return report;
}

void Editor::ApplyPreset(const OvxStringT& panel, const OvxStringT& name)
{
    const RowPlace place = FindOfferingPanel(workings->session.GetPanels(), panel);
    workings->NeedTargets();
    workings->DemandTargets(place);
    const WCmnUI_ListItem item = FindItem(place, name);
    if (workings->selection.scope == SelectorScope::Sheet)
        throw EditError("the preset " + Quoted(name) + " cannot be applied on " +
                        OvxUtils::ToUtf8(workings->selection.selector) +
                        ": presets are for objects and default styles");
    const auto apply = [&]
    {
        place.GetBoundNames().Write<WCmnUI_ListItem>(L"CurrentPreset", item);
        DemandDefinitions(*workings, place, name);
    };
    workings->Perform(NameStep(kApplyPresetStep, name), {place}, apply);
}

bool Editor::AddPreset(const OvxStringT& panel, const OvxStringT& name, std::optional<bool> mayReplace)
{
    const RowPlace place = FindOfferingPanel(workings->session.GetPanels(), panel);
    if (name.empty())
        throw UsageError("the name of a preset is empty; expected a text");
    workings->NeedTargets();
    workings->DemandTargets(place);
    if (place.GetBoundNames().Read<int>(L"AddPresetEnabled") == 0)
        throw EditError("the preset " + Quoted(name) + " cannot be made from " +
                        OvxUtils::ToUtf8(workings->selection.selector) +
                        ": presets are made from objects and default styles");
    const std::vector<WCmnUI_ListItem> items = ReadItems(place);
    const bool isThere = std::ranges::find(items, name, &WCmnUI_ListItem::GetText) != items.end();

    PanelDialogs& dialogs = workings->session.GetDialogs();
    SettledAnswers answers(dialogs.GetAnswers());
    answers.SettlePresetName(name);
    if (mayReplace)
        answers.SettleConfirmation(*mayReplace);
    const AnswersInPlace inPlace(dialogs, &answers);
    static_cast<void>(dialogs.TakeLastEnd());
    static_cast<void>(workings->session.TakePresetFailure());
    place.GetBoundNames().Invoke(L"OnAddPreset");
    DemandNoFailure(workings->session);
    if (dialogs.TakeLastEnd() != DialogEnd::Accepted)
        throw EditError("the preset " + Quoted(name) + " of the panel " + OvxUtils::ToUtf8(place.GetName()) +
                        " was left as it is: it is there already, and was not to be replaced");
    return isThere;
}

void Editor::DeletePreset(const OvxStringT& panel, const OvxStringT& name)
{
    const RowPlace place = FindOfferingPanel(workings->session.GetPanels(), panel);
    workings->DemandNoGroup("deleting a preset");
    const WCmnUI_ListItem item = FindItem(place, name);
    // To select a preset is to apply it: there has to be nothing that could take it.
    TargetHandover::HandInNothing(place.panel->GetDataSource(), place.panel->GetDescription());
    place.GetBoundNames().Write<WCmnUI_ListItem>(L"CurrentPreset", item);
    static_cast<void>(workings->session.TakePresetFailure());
    place.GetBoundNames().Invoke(L"OnDeletePreset");
    workings->Refresh();
    DemandNoFailure(workings->session);
}

} // namespace Workbench
