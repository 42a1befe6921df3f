#pragma once

#include "apps/cli/EditingCommand.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Cli
{

/// What every command about a drawing takes.
struct DrawingOptions
{
    std::string file;
    bool isJson = false;
    std::optional<std::filesystem::path> panelFolder; ///< The one chosen on the command line.
    std::string language;                             ///< Empty: chosen by the output's reader.
};

/// styleprops inspect
struct InspectOptions
{
    DrawingOptions drawing;
    std::string selector;
    std::vector<std::string> panels; ///< Names; empty for all.
    bool isEach = false;
};

/// styleprops styles
struct StylesOptions
{
    DrawingOptions drawing;
};

/// Where an edited drawing goes: one of these. A backup is kept in place only, and nothing is forced in a dry
/// run.
struct OutputOptions
{
    std::filesystem::path target; ///< A file of its own; empty without one.
    bool isInPlace = false;
    bool keepsBackup = false;
    bool isForced = false;
    bool isDryRun = false;
};

/// What every command that changes a drawing takes.
struct EditedDrawing
{
    DrawingOptions drawing;
    std::string selector = "all";
    OutputOptions output;
};

/// styleprops set, clear, revert, ...: one command.
struct EditOptions
{
    EditedDrawing edited;
    EditingCommand command;
};

/// styleprops edit: a script of commands.
struct ScriptOptions
{
    EditedDrawing edited;
    std::string script; ///< A file, or "-" for the standard input.
};

/// styleprops style-list, presets list, ...: one command that changes no drawing.
struct AskOptions
{
    DrawingOptions drawing; ///< Its file is empty for commands that need no drawing.
    std::string selector = "all";
    EditingCommand command;
};

/// A text that was asked for in place of work: help or the version.
struct InformationText
{
    std::string text;
};

using Command =
    std::variant<InspectOptions, StylesOptions, EditOptions, ScriptOptions, AskOptions, InformationText>;

/// Reads the command line of the tool.
///
/// @throws Workbench::UsageError when it cannot be understood.
[[nodiscard]] Command ParseCommandLine(int argumentCount, const char* const* arguments);

} // namespace Cli
