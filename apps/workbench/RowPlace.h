#pragma once

#include "apps/workbench/Panel.h"
#include "apps/workbench/PanelDescription.h"
#include "host/utils/OvxStringT.h"

#include <memory>
#include <vector>

namespace Workbench
{

/// Where edits of a row, or of a panel's whole style, go. Borrows the panel.
struct RowPlace
{
    Panel* panel = nullptr;              ///< Never null when it was found.
    const RowDescription* row = nullptr; ///< Null for the whole style.

    /// What the panel's commands are told to be about: the row, or "style".
    [[nodiscard]] OvxStringT GetIdentifier() const;

    /// "fill.color", or "fill" for the whole style.
    [[nodiscard]] OvxStringT GetName() const;

    [[nodiscard]] IReflectable& GetBoundNames() const noexcept { return panel->GetBoundNames(); }

    /// Tells whether the row's value is the name of the style that whole styles inherit from.
    [[nodiscard]] bool IsStyleParent() const;
};

using LoadedPanels = std::vector<std::unique_ptr<Panel>>;

/// Finds the panel of that name.
///
/// @throws UsageError when there is none, with the names that there are.
[[nodiscard]] RowPlace FindPanel(const LoadedPanels& panels, const OvxStringT& name);

/// Finds a row by the name of its panel and its identifier, joined by ".".
///
/// @throws UsageError when there is none, with the panels or the rows of the panel.
[[nodiscard]] RowPlace FindRow(const LoadedPanels& panels, const OvxStringT& name);

/// Finds a row, or a panel that is named alone.
///
/// @throws UsageError as FindRow().
[[nodiscard]] RowPlace FindRowOrPanel(const LoadedPanels& panels, const OvxStringT& name);

} // namespace Workbench
