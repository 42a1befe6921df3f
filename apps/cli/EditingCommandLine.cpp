#include "apps/cli/EditingCommandLine.h"

#include "apps/cli/DrawingArguments.h"
#include "apps/workbench/UsageError.h"

#include <CLI/CLI.hpp>

#include <cstddef>

namespace Cli
{
namespace
{

using Workbench::UsageError;

constexpr const char* kScriptHelp =
    "A file with one command a line, written as on the command line without FILE\n"
    "and the options above; - reads the standard input. Besides:\n"
    "  select SELECTOR          choose what the next commands are about\n"
    "  undo, redo               go through the steps\n"
    "  begin-group, end-group   let the commands between be one step\n"
    "  end-group --cancel       give up what the group changed\n"
    "  show [PANEL]             show what the panels show\n"
    "# begins a comment; \"...\" holds blanks, \\\" and \\\\";

void DeclareOutput(CLI::App& command, OutputOptions& output)
{
    command
        .add_option("-o,--output", output.target,
                    "Write the changed drawing to this file, replacing one that is there")
        ->option_text("OUT");
    command.add_flag("--in-place", output.isInPlace, "Write the changed drawing over FILE");
    command.add_flag("--backup", output.keepsBackup, "Keep what FILE was as FILE~; with --in-place");
    command.add_flag("--force", output.isForced,
                     "Replace the file also when that loses somebody else's changes, its further names, its "
                     "protection or its owner");
    command.add_flag("--dry-run", output.isDryRun, "Tell what would change, and write nothing");
}

void CheckOutput(const OutputOptions& output, const std::string& verb)
{
    const std::string help = "; see styleprops " + verb + " --help";
    const int places =
        (output.target.empty() ? 0 : 1) + (output.isInPlace ? 1 : 0) + (output.isDryRun ? 1 : 0);
    if (places != 1)
    {
        const std::string problem = places == 0 ? "it is not said where to write the changed drawing"
                                                : "the changed drawing can go to one place only";
        throw UsageError(problem + "; expected one of -o OUT, --in-place and --dry-run" + help);
    }
    if (output.target == "-")
        throw UsageError("-o - names no file, and the standard output is for the report; expected a file" +
                         help);
    if (output.keepsBackup && !output.isInPlace)
        throw UsageError("--backup keeps what a file was; expected it beside --in-place" + help);
    if (output.isForced && output.isDryRun)
        throw UsageError("--force replaces a file; expected it beside -o OUT or --in-place" + help);
}

/// The command that holds the commands of a group; made with the first of them.
CLI::App& NeedGroup(CLI::App& app, const std::string& name)
{
    const auto found = app.get_subcommands([&](const CLI::App* each) { return each->get_name() == name; });
    if (!found.empty())
        return *found.front();
    CLI::App& group = *app.add_subcommand(name, "Keep looks under a name, and use them in any drawing");
    group.require_subcommand(1);
    return group;
}

} // namespace

EditingCommandLine::EditingCommandLine(CLI::App& app)
{
    for (const EditingVerb& verb : GetEditingVerbs())
    {
        if (verb.place == VerbPlace::ScriptsOnly)
            continue;
        CLI::App& command = AddCommand(app, verb);
        DeclareWords(command, verb, words);
        command.footer("Example:\n  styleprops " + std::string(verb.example));
        verbCommands.push_back({&verb, &command});
    }
    AddScriptCommand(app);
}

CLI::App& EditingCommandLine::AddCommand(CLI::App& app, const EditingVerb& verb)
{
    const std::string name = verb.name;
    const std::size_t blank = name.find(' ');
    if (blank == std::string::npos)
        return AddCommand(app, name, verb.summary, verb.place);
    return AddCommand(NeedGroup(app, name.substr(0, blank)), name.substr(blank + 1), verb.summary,
                      verb.place);
}

CLI::App& EditingCommandLine::AddCommand(CLI::App& app, const std::string& name, const std::string& summary,
                                         VerbPlace place)
{
    CLI::App& command = *app.add_subcommand(name, summary);
    if (place == VerbPlace::WithoutDrawing)
    {
        DeclareReport(command, edited.drawing);
        return command;
    }
    const bool isChange = place == VerbPlace::ChangesDrawing;
    DeclareDrawing(command, edited.drawing);
    DeclareSelector(command, edited.selector, isChange ? "What to change" : "What to look at");
    if (isChange)
        DeclareOutput(command, edited.output);
    return command;
}

void EditingCommandLine::AddScriptCommand(CLI::App& app)
{
    CLI::App& command = AddCommand(app, "edit", "Run a script of commands on one drawing, and write it once",
                                   VerbPlace::ChangesDrawing);
    command.add_option("--script", script, kScriptHelp)->required()->option_text("EDITS");
    command.footer("Example:\n  styleprops edit sketch.odg --script tidy.txt --in-place --backup");
    scriptCommand = &command;
}

std::optional<Command> EditingCommandLine::GetParsed() const
{
    if (scriptCommand->parsed())
    {
        CheckOutput(edited.output, scriptCommand->get_name());
        return ScriptOptions{edited, script};
    }
    for (const VerbCommand& each : verbCommands)
    {
        if (!each.command->parsed())
            continue;
        if (each.verb->place != VerbPlace::ChangesDrawing)
            return AskOptions{edited.drawing, edited.selector, each.verb->read(words)};
        CheckOutput(edited.output, each.verb->name);
        return EditOptions{edited, each.verb->read(words)};
    }
    return std::nullopt;
}

} // namespace Cli
