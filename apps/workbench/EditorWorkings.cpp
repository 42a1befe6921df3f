// How an edit runs: what is checked before, noted, opened, closed, and told afterwards.

#include "apps/workbench/EditorWorkings.h"

#include "apps/workbench/Gesture.h"
#include "apps/workbench/PanelCommands.h"
#include "apps/workbench/PanelReading.h"
#include "apps/workbench/QuotedNames.h"
#include "host/utils/Utf8.h"
#include "reference_host/services/Idle.h"

#include <utility>

namespace Workbench
{

Editor::Workings::Workings(Session& itsSession)
    : session(itsSession),
      history(itsSession.GetDrawing().GetHistory()),
      ledger(itsSession),
      selection(itsSession.Select(ParseSelector(L"all")))
{
    session.GetStyleEditor().SetListener([this](const OvxStringT& name) { askedStyle = name; });
    Refresh();
}

Editor::Workings::~Workings()
{
    session.GetStyleEditor().SetListener(nullptr);
}

void Editor::Workings::Select(Selection newSelection)
{
    selection = std::move(newSelection);
    Refresh();
}

void Editor::Workings::NeedTargets()
{
    if (handoverInForce == session.GetHandoverCount())
        return;
    session.HandIn(selection);
    handoverInForce = session.GetHandoverCount();
}

void Editor::Workings::Refresh()
{
    session.HandIn(selection);
    handoverInForce = session.GetHandoverCount();
    ReferenceHost::RunIdle();
}

void Editor::Workings::Perform(const OvxStringT& stepName, const std::vector<RowPlace>& places,
                               const std::function<void()>& work)
{
    NeedTargets();
    for (const RowPlace& place : places)
        ledger.Note(selection, place);
    if (group)
    {
        for (const RowPlace& place : places)
            group->Join(*place.panel);
    }
    try
    {
        Gesture gesture(history, stepName);
        work();
        gesture.Keep();
    }
    catch (...)
    {
        Refresh();
        throw;
    }
    Refresh();
}

std::vector<RowPlace> Editor::Workings::FindRows(const std::vector<OvxStringT>& names) const
{
    std::vector<RowPlace> places;
    for (const OvxStringT& name : names)
        places.push_back(FindRow(session.GetPanels(), name));
    return places;
}

std::vector<RowPlace> Editor::Workings::FindRowsOrPanels(const std::vector<OvxStringT>& names) const
{
    std::vector<RowPlace> places;
    for (const OvxStringT& name : names)
        places.push_back(FindRowOrPanel(session.GetPanels(), name));
    return places;
}

void Editor::Workings::DemandTargets(const RowPlace& place) const
{
    if (!place.panel->GetDataSource().HasTargets())
        throw EditError(OvxUtils::ToUtf8(place.GetName()) + " cannot be edited on " +
                        OvxUtils::ToUtf8(selection.selector) +
                        ": nothing that is selected belongs to this panel");
    const bool isNamed = selection.scope == SelectorScope::Sheet;
    const OvxStringT readOnly =
        isNamed ? session.GetStyles().ReadOnlySheetOf(selection.styleName) : OvxStringT();
    if (!readOnly.empty())
        throw EditError(OvxUtils::ToUtf8(place.GetName()) + " cannot be edited on " +
                        OvxUtils::ToUtf8(selection.selector) + ": the style comes from the style sheet " +
                        Quoted(readOnly) + ", which the drawing does not let be edited");
}

void Editor::Workings::DemandNoGroup(const std::string& action) const
{
    if (group)
        throw EditError(action + " is not possible while a group is open: end the group first");
}

std::string Editor::Workings::StateOf(const RowPlace& place) const
{
    if (place.row == nullptr)
        return AskState(place.GetBoundNames(), place.GetIdentifier());
    const int state = place.GetBoundNames().Read<int>(place.row->property + kStateSuffix);
    return OvxUtils::ToUtf8(StateName(static_cast<ActivePropertyState>(state)));
}

void Editor::Workings::Refuse(const RowPlace& place, const std::string& problem,
                              const std::string& reason) const
{
    throw EditError(OvxUtils::ToUtf8(place.GetName()) + " " + problem + " on " +
                    OvxUtils::ToUtf8(selection.selector) + ": its state is " + StateOf(place) +
                    (reason.empty() ? "" : ", " + reason));
}

} // namespace Workbench
