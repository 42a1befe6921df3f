// The commands of panels: revert, apply to parent, break a link, create and edit styles.

#include "apps/workbench/EditorWorkings.h"
#include "apps/workbench/PanelCommands.h"
#include "apps/workbench/QuotedNames.h"
#include "host/utils/Utf8.h"

#include <algorithm>

namespace Workbench
{
namespace
{

constexpr OvxStringViewT kApplyToParent = L"ApplyToParent";
constexpr OvxStringViewT kApplyToParentEnable = L"ApplyToParentEnable";

/// A command that several rows or panels are told to run.
struct PanelCommand
{
    OvxStringViewT stepKey;
    OvxStringViewT enable;
    OvxStringViewT command;
    const char* problem; ///< "cannot be reverted"
    const char* reason;  ///< Why it cannot in any such state.
};

void RunOnAll(Editor::Workings& workings, const PanelCommand& command, const std::vector<RowPlace>& places)
{
    workings.NeedTargets();
    for (const RowPlace& place : places)
    {
        workings.DemandTargets(place);
        if (!IsEnabled(place.GetBoundNames(), place.GetIdentifier(), command.enable))
            workings.Refuse(place, command.problem, command.reason);
    }
    const auto run = [&]
    {
        if (workings.group)
            workings.group->WritePostponed();
        for (const RowPlace& place : places)
            RunCommand(place.GetBoundNames(), place.GetIdentifier(), command.command);
    };
    workings.Perform(NameStep(command.stepKey, places), places, run);
}

/// One property has a command of its panel's own.
void DemandApplicableRow(const Editor::Workings& workings, const RowPlace& place)
{
    const OvxStringT enable = place.row->property + kApplyToParentEnable;
    if (IsEnabled(place.GetBoundNames(), place.GetIdentifier(), enable))
        return;
    const bool isAmbiguous = place.GetBoundNames().Read<int>(place.row->property + kAmbiguousSuffix) != 0;
    workings.Refuse(place, "cannot be applied to the parent",
                    isAmbiguous ? "and the targets differ in it"
                                : "and only a local value moves to a parent that there is");
}

/// Tells whether several targets would not look the same if the first one's values became all of theirs.
bool WouldChangeLook(const RowPlace& row)
{
    const OvxStringT& property = row.row->property;
    const auto state =
        static_cast<ActivePropertyState>(row.GetBoundNames().Read<int>(property + kStateSuffix));
    const bool isAmbiguous = row.GetBoundNames().Read<int>(property + kAmbiguousSuffix) != 0;
    return state == ActivePropertyState::Ambiguous ||
           (state == ActivePropertyState::Overridden && isAmbiguous);
}

/// The library's command moves what the first target sets into what the first target inherits from, and takes
/// it away from all: that keeps the look of the others only if they agree in both.
void DemandAgreement(const Editor::Workings& workings, const RowPlace& place)
{
    const std::vector<OvxStringT> parents =
        workings.session.GetStyles().ParentsOfTargets(place.panel->GetDataSource());
    if (parents.size() > 1)
        workings.Refuse(place, "cannot be applied to the parent",
                        "and the targets inherit from several styles: " + QuotedList(parents));
    const bool isWhole = place.panel->GetDescription().category == L"style";
    for (const std::unique_ptr<Panel>& panel : workings.session.GetPanels())
    {
        if (!isWhole && panel.get() != place.panel)
            continue;
        for (const RowDescription& description : panel->GetDescription().rows)
        {
            const RowPlace row{panel.get(), &description};
            if (!row.IsStyleParent() && WouldChangeLook(row))
                workings.Refuse(place, "cannot be applied to the parent",
                                "and the targets differ in " + OvxUtils::ToUtf8(row.GetName()));
        }
    }
}

void DemandApplicableStyle(const Editor::Workings& workings, const RowPlace& place)
{
    if (!IsEnabled(place.GetBoundNames(), place.GetIdentifier(), kApplyToParentEnable))
        workings.Refuse(place, "cannot be applied to the parent", "");
    if (place.panel->GetDataSource().GetNumTargetStyles() > 1)
        DemandAgreement(workings, place);
}

void DemandEditableParents(const Editor::Workings& workings, const RowPlace& place)
{
    const TargetHandover& styles = workings.session.GetStyles();
    for (const OvxStringT& name : styles.ParentsOfTargets(place.panel->GetDataSource()))
    {
        const OvxStringT sheet = styles.ReadOnlySheetOf(name);
        if (!sheet.empty())
            workings.Refuse(place, "cannot be applied to the parent",
                            "and " + Quoted(name) + " comes from the style sheet " + Quoted(sheet) +
                                ", which the drawing does not let be edited");
    }
}

/// Panels name the drawing's own styles only.
std::string WhyNoStyleIsNamed(const Editor::Workings& workings, const RowPlace& place)
{
    const TargetHandover& styles = workings.session.GetStyles();
    const std::vector<OvxStringT>& own = styles.GetStyleNames();
    for (const OvxStringT& name : styles.ParentsOfTargets(place.panel->GetDataSource()))
    {
        if (std::find(own.begin(), own.end(), name) == own.end())
            return "and " + Quoted(name) + " comes from a style sheet; select " +
                   Quoted(OvxStringViewT(L"sheet:") + name) + " instead";
    }
    return "and no named style is inherited from";
}

/// Remembers the styles that are about to receive values.
void NoteParents(Editor::Workings& workings, const RowPlace& place)
{
    for (const OvxStringT& name : workings.session.GetStyles().ParentsOfTargets(place.panel->GetDataSource()))
    {
        const Selection parent{OvxStringViewT(L"sheet:") + name, SelectorScope::Sheet, name, {}};
        workings.ledger.Note(parent, place);
    }
}

void Apply(const RowPlace& place)
{
    const OvxStringT command =
        place.row == nullptr ? OvxStringT(L"OnApplyToParent") : place.row->property + kApplyToParent;
    RunCommand(place.GetBoundNames(), place.GetIdentifier(), command);
}

/// The first name that was not there before; empty when none came.
OvxStringT FindNewName(const std::vector<OvxStringT>& before, const std::vector<OvxStringT>& now)
{
    const auto found = std::find_if(now.begin(), now.end(),
                                    [&](const OvxStringT& name) {
                                        return std::find(before.begin(), before.end(), name) == before.end();
                                    });
    return found == now.end() ? OvxStringT() : *found;
}

void DemandFreeName(const TargetHandover& styles, const std::optional<OvxStringT>& name)
{
    if (!name)
        return;
    if (name->empty())
        throw UsageError("the name of a style is empty; expected a text");
    if (!styles.CategoryOf(*name).empty())
        throw UsageError("there is a style " + Quoted(*name) + " already; expected a name that is free");
}

OvxStringT MakeStyle(Editor::Workings& workings, const RowPlace& place, const std::optional<OvxStringT>& name)
{
    const TargetHandover& styles = workings.session.GetStyles();
    const std::vector<OvxStringT> before = styles.GetStyleNames();
    RunCommand(place.GetBoundNames(), place.GetIdentifier(), L"OnCreateStyleFrom");
    const OvxStringT created = FindNewName(before, styles.GetStyleNames());
    if (created.empty())
        workings.Refuse(place, "cannot become a named style", "and the drawing made none");
    if (!name)
        return created;
    if (*name != created && !workings.session.GetDrawing().RenameStyle(created, *name))
        throw UsageError("no drawing can hold " + Quoted(*name) +
                         " as the name of a style; expected a text "
                         "without control characters");
    return *name;
}

} // namespace

void Editor::Revert(const std::vector<OvxStringT>& rowsOrPanels)
{
    RunOnAll(*workings,
             {kRevertStep, L"RevertToParentEnable", L"OnRevertToParent", "cannot be reverted",
              "and only a local value can be"},
             workings->FindRowsOrPanels(rowsOrPanels));
}

void Editor::BreakLink(const std::vector<OvxStringT>& rows)
{
    RunOnAll(*workings,
             {kBreakLinkStep, L"BreakColorResourceEnable", L"OnBreakColorResource", "has no link to break",
              "and the command takes one target whose colour refers to the palette"},
             workings->FindRows(rows));
}

void Editor::ApplyToParent(const std::vector<OvxStringT>& rowsOrPanels)
{
    const std::vector<RowPlace> places = workings->FindRowsOrPanels(rowsOrPanels);
    workings->NeedTargets();
    for (const RowPlace& place : places)
    {
        workings->DemandTargets(place);
        if (place.row == nullptr)
            DemandApplicableStyle(*workings, place);
        else
            DemandApplicableRow(*workings, place);
        DemandEditableParents(*workings, place);
    }
    for (const RowPlace& place : places)
        NoteParents(*workings, place);
    workings->Perform(NameStep(kApplyToParentStep, places), places,
                      [&] { std::for_each(places.begin(), places.end(), Apply); });
}

OvxStringT Editor::CreateStyle(const OvxStringT& panel, const std::optional<OvxStringT>& name)
{
    const RowPlace place = FindPanel(workings->session.GetPanels(), panel);
    workings->NeedTargets();
    DemandFreeName(workings->session.GetStyles(), name);
    workings->DemandTargets(place);
    if (workings->selection.scope == SelectorScope::Defaults)
        workings->Refuse(place, "cannot become a named style", "and default styles stay what they are");
    if (!IsEnabled(place.GetBoundNames(), place.GetIdentifier(), L"CreateStyleFromEnable"))
        workings->Refuse(place, "cannot become a named style", "");

    OvxStringT created;
    workings->Perform(NameStep(kCreateStyleStep, {place}), {place},
                      [&] { created = MakeStyle(*workings, place, name); });
    workings->ledger.NoteCreated(created);
    return created;
}

OvxStringT Editor::EditStyle(const OvxStringT& panel)
{
    const RowPlace place = FindPanel(workings->session.GetPanels(), panel);
    workings->DemandNoGroup("another selection");
    workings->NeedTargets();
    workings->DemandTargets(place);
    workings->askedStyle.reset();
    if (IsEnabled(place.GetBoundNames(), place.GetIdentifier(), L"EditStyleEnable"))
        RunCommand(place.GetBoundNames(), place.GetIdentifier(), L"OnEditStyle");
    if (!workings->askedStyle)
        workings->Refuse(place, "has no style to edit", WhyNoStyleIsNamed(*workings, place));

    const OvxStringT name = *workings->askedStyle;
    workings->Select(Selection{OvxStringViewT(L"sheet:") + name, SelectorScope::Sheet, name, {}});
    return name;
}

} // namespace Workbench
