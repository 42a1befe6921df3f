#include "apps/cli/CommandLine.h"

#include "apps/workbench/UsageError.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <utility>

namespace Cli
{
namespace
{

constexpr const char* kVersionText = "styleprops " STYLEPROPERTIES_VERSION;

constexpr const char* kSelectorHelp =
    "What to look at: terms joined by commas, any of which may fit:\n"
    "  all            every object (the default)\n"
    "  page:N         the objects of a page, from 1\n"
    "  name:GLOB      objects and groups by name\n"
    "  style:GLOB     objects by their named style's name or display name\n"
    "  kind:GLOB      objects by kind: rect, ellipse, custom-shape, group, ...\n"
    "  id:1/4/2       page, position on the page, positions inside groups\n"
    "or one of these, alone:\n"
    "  defaults       the default style of the drawing\n"
    "  sheet:NAME     a named style itself\n"
    "A group stands for its members. GLOB takes *, ? and [...].";

void AddDrawingOptions(CLI::App& command, DrawingOptions& options)
{
    command.add_option("FILE", options.file, "A drawing: .fodg, .odg or .otg")->required()->option_text(" ");
    command.add_flag("--json", options.isJson, "Write JSON for programs");
    command
        .add_option("--panels", options.panelFolder,
                    "The folder with the panels (default: STYLEPROPS_PANELS, or\n"
                    "the folder that came with the program)")
        ->option_text("DIR");
    command
        .add_option("--lang", options.language,
                    "The language of labels, titles and tooltips, such as en or de\n"
                    "(default: that of the locale, en with --json)")
        ->option_text("LANG");
}

CLI::App* AddInspect(CLI::App& app, InspectOptions& options)
{
    CLI::App* const command = app.add_subcommand("inspect", "Show what every panel shows for a selection");
    AddDrawingOptions(*command, options.drawing);
    command->add_option("--select", options.selector, kSelectorHelp)->option_text("SELECTOR");
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
    AddDrawingOptions(*command, options.drawing);
    command->footer("Example:\n  styleprops styles sketch.odg --json");
    return command;
}

/// The help of the innermost command that was named.
std::string HelpOf(const CLI::App& app)
{
    const auto subcommands = app.get_subcommands();
    return subcommands.empty() ? app.help() : subcommands.front()->help(app.get_name());
}

} // namespace

Command ParseCommandLine(int argumentCount, const char* const* arguments)
{
    InspectOptions inspect;
    inspect.selector = "all";
    StylesOptions styles;
    CLI::App app("Shows where the styles of a drawing's shapes come from.", "styleprops");
    app.set_help_flag("-h,--help", "Show this help");
    app.set_version_flag("--version", kVersionText, "Show the version");
    app.require_subcommand(1);
    app.footer(
        "Example:\n  styleprops inspect sketch.odg\n\nstyleprops COMMAND --help tells more about a command.");
    const CLI::App* const inspectCommand = AddInspect(app, inspect);
    AddStyles(app, styles);
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
        const auto subcommands = app.get_subcommands();
        const std::string name = subcommands.empty() ? std::string() : " " + subcommands.front()->get_name();
        throw Workbench::UsageError(std::string(error.what()) + "; see styleprops" + name + " --help");
    }
    if (inspectCommand->parsed())
        return inspect;
    return styles;
}

} // namespace Cli
