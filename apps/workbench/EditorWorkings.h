#pragma once

#include "apps/workbench/ChangeLedger.h"
#include "apps/workbench/DragGroup.h"
#include "apps/workbench/Editor.h"
#include "apps/workbench/RowPlace.h"
#include "apps/workbench/StepNames.h"
#include "host/utils/Any.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Workbench
{

/// What the operations of an editor share: the session, the selection, the open group, and how an edit runs.
struct Editor::Workings
{
    explicit Workings(Session& itsSession);
    Workings(const Workings&) = delete;
    Workings& operator=(const Workings&) = delete;
    ~Workings();

    /// Makes a selection the one that edits are about.
    void Select(Selection newSelection);

    /// Hands the selection in again unless it still is what the panels hold.
    void NeedTargets();

    /// Hands fresh targets in, so that listeners hear of a change, and delivers the events that wait.
    void Refresh();

    /// Runs `work` as one step, or as part of the group. What is about to be touched is noted before, and the
    /// panels hold fresh targets behind it. When `work` throws, what it did is taken back.
    void Perform(const OvxStringT& stepName, const std::vector<RowPlace>& places,
                 const std::function<void()>& work);

    [[nodiscard]] std::vector<RowPlace> FindRows(const std::vector<OvxStringT>& names) const;
    [[nodiscard]] std::vector<RowPlace> FindRowsOrPanels(const std::vector<OvxStringT>& names) const;

    /// @throws EditError when nothing of what is selected belongs to the panel, and when it is a style of a
    ///         sheet that may not be edited from the drawing.
    void DemandTargets(const RowPlace& place) const;

    /// @throws EditError while a group is open.
    void DemandNoGroup(const std::string& action) const;

    /// The state of a row or a whole style by its name.
    [[nodiscard]] std::string StateOf(const RowPlace& place) const;

    /// @throws EditError always: `problem` is what cannot be done, `reason` why, both in words.
    [[noreturn]] void Refuse(const RowPlace& place, const std::string& problem,
                             const std::string& reason) const;

    Session& session;
    ReferenceHost::History& history;
    ChangeLedger ledger;
    Selection selection;
    std::size_t handoverInForce = 0;      ///< The session's count after this editor's own handing in.
    std::optional<DragGroup> group;       ///< None while no group is open.
    std::optional<OvxStringT> askedStyle; ///< What a panel asked to be opened for editing.
};

} // namespace Workbench
