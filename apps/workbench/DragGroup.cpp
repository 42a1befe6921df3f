#include "apps/workbench/DragGroup.h"

#include "apps/workbench/StepNames.h"
#include "apps/workbench/TargetHandover.h"

#include <algorithm>
#include <exception>

namespace Workbench
{

DragGroup::DragGroup(ReferenceHost::History& history, bool itsTargetsAreDefaults)
    : gesture(std::in_place, history, NameGroup()), targetsAreDefaults(itsTargetsAreDefaults)
{
}

DragGroup::~DragGroup()
{
    if (gesture)
        End(false);
}

void DragGroup::Join(Panel& panel)
{
    if (Postpones(panel) || std::find(joined.begin(), joined.end(), &panel) != joined.end())
        return;
    panel.GetDataSource().StartGroupModify();
    joined.push_back(&panel);
}

bool DragGroup::Postpones(const Panel& panel) const
{
    return targetsAreDefaults && !TargetHandover::IsCategoryOfGroups(panel.GetDescription().category);
}

void DragGroup::Postpone(const RowPlace& place, const OvxUtils::Any& value)
{
    const auto found =
        std::find_if(postponed.begin(), postponed.end(),
                     [&](const PostponedWrite& write) { return write.place.row == place.row; });
    if (found == postponed.end())
        postponed.push_back({place, value});
    else
        found->value = value;
}

void DragGroup::WritePostponed()
{
    for (const PostponedWrite& write : postponed)
        write.place.GetBoundNames().WriteAny(write.place.row->property, write.value);
    postponed.clear();
}

void DragGroup::End(bool commit)
{
    std::exception_ptr failure;
    try
    {
        if (commit)
            WritePostponed();
        EndPanels(commit);
    }
    catch (...)
    {
        failure = std::current_exception();
        EndPanels(false);
    }
    if (commit && !failure)
        gesture->Keep();
    gesture.reset();
    if (failure)
        std::rethrow_exception(failure);
}

/// Ends the panels' own groups, the latest first. One that fails is ended and not ended again.
void DragGroup::EndPanels(bool commit)
{
    while (!joined.empty())
    {
        Panel* const panel = joined.back();
        joined.pop_back();
        panel->GetDataSource().EndGroupModify(commit);
    }
}

} // namespace Workbench
