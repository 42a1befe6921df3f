#include "apps/cli/EditRun.h"

#include "apps/workbench/EditError.h"

#include <exception>
#include <optional>
#include <utility>

namespace Cli
{
namespace
{

using Workbench::EditError;

using Content = decltype(EditAnswer::content);
using Told = std::optional<Content>;

constexpr std::nullopt_t kNothing = std::nullopt;

/// Does any command; comes back with what it tells.
struct Performer
{
    Workbench::Session& session;
    Workbench::Editor& editor;
    const Workbench::PanelFolder& panels;

    Told operator()(const SetCommand& command) const
    {
        editor.Set(command.assignments);
        return kNothing;
    }

    Told operator()(const ClearCommand& command) const
    {
        editor.Clear(command.rows);
        return kNothing;
    }

    Told operator()(const RevertCommand& command) const
    {
        editor.Revert(command.rowsOrPanels);
        return kNothing;
    }

    Told operator()(const ApplyToParentCommand& command) const
    {
        editor.ApplyToParent(command.rowsOrPanels);
        return kNothing;
    }

    Told operator()(const BreakLinkCommand& command) const
    {
        editor.BreakLink(command.rows);
        return kNothing;
    }

    Told operator()(const CreateStyleCommand& command) const
    {
        return CreatedStyle{editor.CreateStyle(command.panel, command.name)};
    }

    Told operator()(const EditStyleCommand& command) const
    {
        return OpenedStyle{editor.EditStyle(command.panel)};
    }

    Told operator()(const StyleListCommand& command) const
    {
        return editor.ListStyles(command.panel, command.part);
    }

    Told operator()(const RestyleCommand& command) const
    {
        return editor.Restyle(command.panel, command.pick);
    }

    Told operator()(const PresetListCommand& command) const
    {
        return ListedPresets{command.panel, editor.ListPresets(command.panel)};
    }

    Told operator()(const PresetShowCommand& command) const
    {
        return ShownPreset{command.panel, command.name, editor.DescribePreset(command.panel, command.name)};
    }

    Told operator()(const PresetApplyCommand& command) const
    {
        editor.ApplyPreset(command.panel, command.name);
        return kNothing;
    }

    Told operator()(const PresetAddCommand& command) const
    {
        const bool isReplaced = editor.AddPreset(command.panel, command.name, command.mayReplace);
        return AddedPreset{command.panel, command.name, isReplaced};
    }

    Told operator()(const PresetDeleteCommand& command) const
    {
        editor.DeletePreset(command.panel, command.name);
        return DeletedPreset{command.panel, command.name};
    }

    Told operator()(const PaletteCommand& command) const
    {
        editor.DefineColours(command.colours);
        return kNothing;
    }

    Told operator()(const SelectCommand& command) const
    {
        editor.Select(command.selector);
        return kNothing;
    }

    Told operator()(const UndoCommand&) const
    {
        if (!editor.Undo())
            throw EditError("there is no step to undo; expected a command that changes something before it");
        return kNothing;
    }

    Told operator()(const RedoCommand&) const
    {
        if (!editor.Redo())
            throw EditError("there is no step to redo; expected undo before it");
        return kNothing;
    }

    Told operator()(const BeginGroupCommand&) const
    {
        editor.BeginGroup();
        return kNothing;
    }

    Told operator()(const EndGroupCommand& command) const
    {
        editor.EndGroup(!command.isCancelled);
        return kNothing;
    }

    Told operator()(const ShowCommand& command) const
    {
        // Asked of the folder, which knows what to say of a panel that there is none of.
        if (command.panel)
            static_cast<void>(Workbench::ChoosePanels(panels, {*command.panel}));
        Workbench::Report report = session.Inspect(editor.GetSelection());
        const auto isLeftOut = [&](const Workbench::PanelReport& panel)
        { return command.panel && panel.description->name != *command.panel; };
        std::erase_if(report.panels, isLeftOut);
        return report;
    }
};

} // namespace

void EditRun::Do(std::size_t line, const EditingCommand& command)
{
    if (Told told = std::visit(Performer{*session, *editor, *panels}, command))
        answers.push_back({line, *std::move(told)});
}

void EditRun::Do(const EditScript& script)
{
    for (const ScriptCommand& each : script.commands)
    {
        try
        {
            Do(each.line, each.command);
        }
        catch (const std::exception& error)
        {
            throw ScriptError(script.name, each.line, error.what());
        }
    }
}

} // namespace Cli
