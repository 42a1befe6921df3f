#pragma once

#include "apps/workbench/Change.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/StyleList.h"
#include "apps/workbench/StylePick.h"
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

/// style-list --panel PANEL [--more]
struct StyleListCommand
{
    OvxStringT panel;
    Workbench::StyleListPart part = Workbench::StyleListPart::Main;
};

/// restyle NAME|--id N|--none --panel PANEL
struct RestyleCommand
{
    OvxStringT panel;
    Workbench::StylePick pick;
};

/// presets list --panel PANEL
struct PresetListCommand
{
    OvxStringT panel;
};

/// presets show NAME --panel PANEL
struct PresetShowCommand
{
    OvxStringT panel;
    OvxStringT name;
};

/// presets apply NAME --panel PANEL
struct PresetApplyCommand
{
    OvxStringT panel;
    OvxStringT name;
};

/// presets add NAME --panel PANEL [--yes|--no]
struct PresetAddCommand
{
    OvxStringT panel;
    OvxStringT name;
    std::optional<bool> mayReplace; ///< None: ask.
};

/// presets delete NAME --panel PANEL
struct PresetDeleteCommand
{
    OvxStringT panel;
    OvxStringT name;
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
                 CreateStyleCommand, EditStyleCommand, StyleListCommand, RestyleCommand, PresetListCommand,
                 PresetShowCommand, PresetApplyCommand, PresetAddCommand, PresetDeleteCommand, PaletteCommand,
                 SelectCommand, UndoCommand, RedoCommand, BeginGroupCommand, EndGroupCommand, ShowCommand>;

} // namespace Cli
