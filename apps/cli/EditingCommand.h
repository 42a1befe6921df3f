#pragma once

#include "apps/workbench/Change.h"
#include "apps/workbench/Selector.h"
#include "host/utils/OvxStringT.h"

#include <optional>
#include <variant>
#include <vector>

namespace Cli
{

/// set ROW=VALUE...
struct SetCommand
{
    std::vector<Workbench::Assignment> assignments; ///< At least one.
};

/// clear ROW...
struct ClearCommand
{
    std::vector<OvxStringT> rows; ///< At least one.
};

/// revert ROW|PANEL...
struct RevertCommand
{
    std::vector<OvxStringT> rowsOrPanels; ///< At least one.
};

/// apply-to-parent ROW|PANEL...
struct ApplyToParentCommand
{
    std::vector<OvxStringT> rowsOrPanels; ///< At least one.
};

/// break-link ROW...
struct BreakLinkCommand
{
    std::vector<OvxStringT> rows; ///< At least one.
};

/// create-style PANEL [--name NAME]
struct CreateStyleCommand
{
    OvxStringT panel;
    std::optional<OvxStringT> name; ///< None: the drawing chooses one.
};

/// edit-style PANEL
struct EditStyleCommand
{
    OvxStringT panel;
};

/// palette NAME=COLOUR...
struct PaletteCommand
{
    std::vector<Workbench::PaletteAssignment> colours; ///< At least one.
};

/// select SELECTOR
struct SelectCommand
{
    Workbench::Selector selector;
};

/// undo
struct UndoCommand
{
};

/// redo
struct RedoCommand
{
};

/// begin-group
struct BeginGroupCommand
{
};

/// end-group [--cancel]
struct EndGroupCommand
{
    bool isCancelled = false;
};

/// show [PANEL]
struct ShowCommand
{
    std::optional<OvxStringT> panel; ///< None: all panels.
};

/// One command of an editing session.
using EditingCommand =
    std::variant<SetCommand, ClearCommand, RevertCommand, ApplyToParentCommand, BreakLinkCommand,
                 CreateStyleCommand, EditStyleCommand, PaletteCommand, SelectCommand, UndoCommand,
                 RedoCommand, BeginGroupCommand, EndGroupCommand, ShowCommand>;

} // namespace Cli
