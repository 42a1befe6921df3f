#include "apps/cli/CommandLine.h"

#include "apps/cli/Completion.h"
#include "apps/cli/DrawingArguments.h"
#include "apps/cli/EditingCommandLine.h"
#include "apps/workbench/UsageError.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string_view>
#include <utility>

namespace Cli
{
namespace
{

constexpr const char* kVersionText = "styleprops " STYLEPROPERTIES_VERSION;

CLI::App* AddInspect(CLI::App& app, InspectOptions& options)
{
    CLI::App* const command = app.add_subcommand("inspect", "Show what every panel shows for a selection");
    DeclareDrawing(*command, options.drawing);
    DeclareSelector(*command, options.selector, "What to look at");
    command->add_option("--panel", options.panels, "Show this panel only; may be repeated")
        ->option_text("NAME")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    command->add_flag("--each", options.isEach,
                      "Report every object by itself instead of the selection as one");
    command->footer("Example:\n  styleprops inspect sketch.odg --select 'page:1,name:Box*' --each");
    return command;
}

CLI::App* AddStyles(CLI::App& app, StylesOptions& options)
{
    CLI::App* const command = app.add_subcommand("styles", "Show the named styles of a drawing as a tree");
    DeclareDrawing(*command, options.drawing);
    command->footer("Example:\n  styleprops styles sketch.odg --json");
    return command;
}

/// The innermost command that was named, and its name with those of the commands round it.
struct NamedCommand
{
    const CLI::App* command;
    std::string name;
};

NamedCommand FindNamedCommand(const CLI::App& app)
{
    NamedCommand found{&app, app.get_name()};
    for (auto named = app.get_subcommands(); !named.empty(); named = found.command->get_subcommands())
        found = {named.front(), found.name + " " + named.front()->get_name()};
    return found;
}

std::string HelpOf(const CLI::App& app)
{
    const NamedCommand found = FindNamedCommand(app);
    if (found.command == &app)
        return app.help();
    return found.command->help(found.name.substr(0, found.name.find_last_of(' ')));
}

} // namespace

Command ParseCommandLine(int argumentCount, const char* const* arguments)
{
    InspectOptions inspect;
    inspect.selector = "all";
    StylesOptions styles;
    CLI::App app("Shows where the styles of a drawing's shapes come from, and changes them.", "styleprops");
    app.set_help_flag("-h,--help", "Show this help");
    app.set_version_flag("--version", kVersionText, "Show the version");
    app.require_subcommand(1);
    app.footer(
        "Example:\n  styleprops inspect sketch.odg\n\nstyleprops COMMAND --help tells more about a command.");
    const CLI::App* const inspectCommand = AddInspect(app, inspect);
    AddStyles(app, styles);
    EditingCommandLine editing(app);
    if (argumentCount > 1 && std::string_view(arguments[1]) == kCompletionRequest)
        return InformationText{CompleteLastWord(app, {arguments + 2, arguments + argumentCount})};
    try
    {
        app.parse(argumentCount, arguments);
    }
    catch (const CLI::CallForHelp&)
    {
        return InformationText{HelpOf(app)};
    }
    catch (const CLI::CallForVersion&)
    {
        return InformationText{std::string(kVersionText) + "\n"};
    }
    catch (const CLI::ParseError& error)
    {
        throw Workbench::UsageError(std::string(error.what()) + "; see " + FindNamedCommand(app).name +
                                    " --help");
    }
    if (inspectCommand->parsed())
        return inspect;
    if (auto parsed = editing.GetParsed())
        return *std::move(parsed);
    return styles;
}

} // namespace Cli
