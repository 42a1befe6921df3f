#pragma once

#include "apps/workbench/Gesture.h"
#include "apps/workbench/RowPlace.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/history/History.h"

#include <optional>
#include <vector>

namespace Workbench
{

/// Many edits as one: a step of history, and a group in each panel that takes part.
///
/// What the default styles are given is gathered until the end: by a panel of the category that its group
/// lands in, and for every other panel here, see TargetHandover::IsCategoryOfGroups().
class DragGroup
{
public:
    /// Opens the step. `history` is borrowed.
    DragGroup(ReferenceHost::History& history, bool itsTargetsAreDefaults);

    DragGroup(const DragGroup&) = delete;
    DragGroup& operator=(const DragGroup&) = delete;

    /// Drops everything, unless End() came before.
    ~DragGroup();

    /// Opens the panel's own group, once, where it has one. Before any step within this group.
    void Join(Panel& panel);

    /// Tells whether writes to a panel wait for the end.
    [[nodiscard]] bool Postpones(const Panel& panel) const;

    /// Takes a write in place of an earlier one to the same row.
    void Postpone(const RowPlace& place, const OvxUtils::Any& value);

    /// Writes what waits, in the order in which the rows came first.
    void WritePostponed();

    /// Closes the groups and the step; without `commit`, and when something throws, everything is taken back.
    void End(bool commit);

private:
    struct PostponedWrite
    {
        RowPlace place;
        OvxUtils::Any value;
    };

    void EndPanels(bool commit);

    std::optional<Gesture> gesture; ///< None after End().
    bool targetsAreDefaults;
    std::vector<Panel*> joined; ///< In the order in which they joined. Borrowed.
    std::vector<PostponedWrite> postponed;
};

} // namespace Workbench
