#include "apps/cli/DrawingArguments.h"

#include <CLI/CLI.hpp>

namespace Cli
{
namespace
{

constexpr const char* kSelectorHelp =
    ": terms joined by commas, any of which may fit:\n"
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

} // namespace

void DeclareDrawing(CLI::App& command, DrawingOptions& options)
{
    command.add_option("FILE", options.file, "A drawing: .fodg, .odg or .otg")->required()->option_text(" ");
    DeclareReport(command, options);
}

void DeclareReport(CLI::App& command, DrawingOptions& options)
{
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

void DeclareSelector(CLI::App& command, std::string& selector, const std::string& purpose)
{
    command.add_option("--select", selector, purpose + kSelectorHelp)->option_text("SELECTOR");
}

} // namespace Cli
