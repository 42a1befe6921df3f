// Selecting, groups, history and saving. Values stand in EditorValues, the commands of panels in
// EditorCommands, and how an edit runs in EditorWorkings.

#include "apps/workbench/Editor.h"

#include "apps/workbench/EditorWorkings.h"

namespace Workbench
{

Editor::Editor(Session& itsSession) : workings(std::make_unique<Workings>(itsSession))
{
}

Editor::~Editor() = default;

void Editor::Select(const Selector& selector)
{
    workings->DemandNoGroup("another selection");
    workings->Select(workings->session.Select(selector));
}

const Selection& Editor::GetSelection() const noexcept
{
    return workings->selection;
}

void Editor::BeginGroup()
{
    workings->DemandNoGroup("a group");
    workings->NeedTargets();
    workings->group.emplace(workings->history, workings->selection.scope == SelectorScope::Defaults);
}

void Editor::EndGroup(bool commit)
{
    if (!workings->group)
        throw EditError("there is no group to end: none is open");
    try
    {
        workings->group->End(commit);
    }
    catch (...)
    {
        workings->group.reset();
        workings->Refresh();
        throw;
    }
    workings->group.reset();
    workings->Refresh();
}

bool Editor::IsGroupOpen() const noexcept
{
    return workings->group.has_value();
}

bool Editor::Undo()
{
    workings->DemandNoGroup("undo");
    const bool undone = workings->history.Undo();
    workings->Refresh();
    return undone;
}

bool Editor::Redo()
{
    workings->DemandNoGroup("redo");
    const bool redone = workings->history.Redo();
    workings->Refresh();
    return redone;
}

std::size_t Editor::GetStepCount() const
{
    return workings->history.GetStepCount();
}

std::vector<Change> Editor::DescribeChanges()
{
    return workings->ledger.Describe();
}

std::vector<std::filesystem::path> Editor::Save(const std::filesystem::path& target,
                                                const ReferenceHost::SaveOptions& options,
                                                std::vector<std::string>& warnings)
{
    workings->DemandNoGroup("saving");
    return workings->session.GetDrawing().Save(target, options, warnings);
}

} // namespace Workbench
