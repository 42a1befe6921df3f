#include "apps/cli/EditingVerb.h"

#include "apps/workbench/UsageError.h"
#include "host/utils/Utf8.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string>
#include <utility>

namespace Cli
{
namespace
{

using Workbench::UsageError;

constexpr int kAny = EditingVerb::kAnyNumber;

constexpr const char* kRowHelp = "A row as PANEL.ROW, such as fill.color or outline.width";
constexpr const char* kRowOrPanelHelp =
    "A row such as fill.color, or a panel such as fill for its whole style";
constexpr const char* kPanelHelp = "A panel, such as style or fill";

/// What a word says. One that is no UTF-8 could not be written into a drawing as it is.
OvxStringT TextOf(const std::string& word)
{
    OvxStringT text = OvxUtils::FromUtf8(word);
    if (OvxUtils::ToUtf8(text) != word)
        throw UsageError("\"" + OvxUtils::ToUtf8(text) + "\" is no valid UTF-8; expected text in UTF-8");
    return text;
}

std::vector<OvxStringT> TextsOf(const EditingWords& words)
{
    std::vector<OvxStringT> texts;
    for (const std::string& word : words.words)
        texts.push_back(TextOf(word));
    return texts;
}

OvxStringT OnlyText(const EditingWords& words)
{
    return TextOf(words.words.front());
}

/// What stands before and behind the equals sign at `place`.
std::pair<OvxStringT, OvxStringT> SplitAt(const std::string& word, std::size_t place, const char* expected)
{
    const OvxStringT text = TextOf(word);
    if (place == std::string::npos || place == 0)
        throw UsageError("\"" + OvxUtils::ToUtf8(text) + "\" names nothing to change; expected " + expected);
    return {TextOf(word.substr(0, place)), TextOf(word.substr(place + 1))};
}

EditingCommand ReadSet(const EditingWords& words)
{
    SetCommand command;
    for (const std::string& word : words.words)
    {
        auto [row, value] = SplitAt(word, word.find('='), "ROW=VALUE, as in fill.color=#3366cc");
        command.assignments.push_back({std::move(row), std::move(value)});
    }
    return command;
}

/// A colour holds no equals sign, but a name may.
EditingCommand ReadPalette(const EditingWords& words)
{
    PaletteCommand command;
    for (const std::string& word : words.words)
    {
        auto [name, colour] = SplitAt(word, word.rfind('='), "NAME=COLOUR, as in Sea=#3366cc");
        command.colours.push_back({std::move(name), std::move(colour)});
    }
    return command;
}

EditingCommand ReadCreateStyle(const EditingWords& words)
{
    CreateStyleCommand command{OnlyText(words), std::nullopt};
    if (words.styleName == "")
        throw UsageError("the new style's name is empty; expected letters behind --name");
    if (words.styleName)
        command.name = TextOf(*words.styleName);
    return command;
}

EditingCommand ReadShow(const EditingWords& words)
{
    return words.words.empty() ? ShowCommand{} : ShowCommand{OnlyText(words)};
}

constexpr EditingVerb kVerbs[] = {
    {"set", "Set values of the selection", "set ROW=VALUE...", "ASSIGNMENT",
     "ROW=VALUE: a row as PANEL.ROW, and its new value with a unit where it has one:\n"
     "  fill.color=#3366cc, outline.width=0.5mm, character.size=12pt, fill.transparency=30%,\n"
     "  fill.color=tomato, fill.color=palette:NAME",
     1, kAny, false, false, VerbPlace::Everywhere,
     "set sketch.odg --select 'name:Box*' fill.color=#3366cc outline.width=0.5mm --in-place", ReadSet},
    {"clear", "Take local values away", "clear ROW...", "ROW", kRowHelp, 1, kAny, false, false,
     VerbPlace::Everywhere, "clear sketch.odg fill.color -o clean.odg",
     [](const EditingWords& words) -> EditingCommand { return ClearCommand{TextsOf(words)}; }},
    {"revert", "Give up what overrides the parent style", "revert ROW|PANEL...", "ROW|PANEL", kRowOrPanelHelp,
     1, kAny, false, false, VerbPlace::Everywhere,
     "revert sketch.odg --select id:1/4 fill --in-place --backup",
     [](const EditingWords& words) -> EditingCommand { return RevertCommand{TextsOf(words)}; }},
    {"apply-to-parent", "Move what is set locally into the parent style", "apply-to-parent ROW|PANEL...",
     "ROW|PANEL", kRowOrPanelHelp, 1, kAny, false, false, VerbPlace::Everywhere,
     "apply-to-parent sketch.odg --select id:1/4 fill.color -o out.odg",
     [](const EditingWords& words) -> EditingCommand { return ApplyToParentCommand{TextsOf(words)}; }},
    {"break-link", "Keep the look of linked colours without the link to the palette", "break-link ROW...",
     "ROW", kRowHelp, 1, kAny, false, false, VerbPlace::Everywhere,
     "break-link sketch.odg fill.color --in-place",
     [](const EditingWords& words) -> EditingCommand { return BreakLinkCommand{TextsOf(words)}; }},
    {"create-style", "Make a named style from the selection", "create-style PANEL [--name NAME]", "PANEL",
     kPanelHelp, 1, 1, true, false, VerbPlace::Everywhere,
     "create-style sketch.odg --select id:1/4 style --name 'Blue box' -o out.odg", ReadCreateStyle},
    {"edit-style", "Tell which named style a panel opens for editing", "edit-style PANEL", "PANEL",
     kPanelHelp, 1, 1, false, false, VerbPlace::Everywhere,
     "edit-style sketch.odg --select id:1/4 fill --dry-run",
     [](const EditingWords& words) -> EditingCommand { return EditStyleCommand{OnlyText(words)}; }},
    {"palette", "Define colours of the drawing's palette", "palette NAME=COLOUR...", "ASSIGNMENT",
     "NAME=COLOUR: an entry of the palette, new or not, and its look: Sea=#3366cc", 1, kAny, false, false,
     VerbPlace::Everywhere, "palette sketch.odg Sea=#3366cc Sand=#e9c46a --in-place", ReadPalette},
    {"select", "Choose what the next commands are about", "select SELECTOR", "SELECTOR", "", 1, 1, false,
     false, VerbPlace::ScriptsOnly, nullptr,
     [](const EditingWords& words) -> EditingCommand
     { return SelectCommand{Workbench::ParseSelector(OnlyText(words))}; }},
    {"undo", "Take the last step back", "undo", "", "", 0, 0, false, false, VerbPlace::ScriptsOnly, nullptr,
     [](const EditingWords&) -> EditingCommand { return UndoCommand{}; }},
    {"redo", "Do again what was taken back", "redo", "", "", 0, 0, false, false, VerbPlace::ScriptsOnly,
     nullptr, [](const EditingWords&) -> EditingCommand { return RedoCommand{}; }},
    {"begin-group", "Let the next commands be one step", "begin-group", "", "", 0, 0, false, false,
     VerbPlace::ScriptsOnly, nullptr,
     [](const EditingWords&) -> EditingCommand { return BeginGroupCommand{}; }},
    {"end-group", "End the step, or give it up", "end-group [--cancel]", "", "", 0, 0, false, true,
     VerbPlace::ScriptsOnly, nullptr,
     [](const EditingWords& words) -> EditingCommand { return EndGroupCommand{words.isCancelled}; }},
    {"show", "Show what the panels show", "show [PANEL]", "PANEL", "", 0, 1, false, false,
     VerbPlace::ScriptsOnly, nullptr, ReadShow},
};

std::string ListVerbs()
{
    std::string list;
    for (const EditingVerb& verb : kVerbs)
        list += (list.empty() ? "" : ", ") + std::string(verb.name);
    return list;
}

} // namespace

std::span<const EditingVerb> GetEditingVerbs()
{
    return kVerbs;
}

void DeclareWords(CLI::App& parser, const EditingVerb& verb, EditingWords& words)
{
    if (*verb.wordsName != '\0')
    {
        CLI::Option* const option = parser.add_option(verb.wordsName, words.words, verb.wordsHelp);
        option->option_text(" ")->expected(verb.fewestWords, verb.mostWords);
        option->allow_extra_args()->required(verb.fewestWords > 0);
    }
    if (verb.takesStyleName)
        parser.add_option("--name", words.styleName, "What the new style is called")->option_text("NAME");
    if (verb.takesCancel)
        parser.add_flag("--cancel", words.isCancelled, "Give up what the group changed");
}

EditingCommand ReadEditingCommand(const std::vector<std::string>& words)
{
    const auto* const verb = std::ranges::find(kVerbs, words.front(), &EditingVerb::name);
    if (verb == std::end(kVerbs))
        throw UsageError("\"" + words.front() + "\" is no command; expected one of " + ListVerbs());
    EditingWords gathered;
    CLI::App parser;
    parser.set_help_flag();
    DeclareWords(parser, *verb, gathered);
    try
    {
        // The parser takes words from the end of its list.
        parser.parse(std::vector<std::string>(words.rbegin(), words.rend() - 1));
    }
    catch (const CLI::ParseError& error)
    {
        throw UsageError(std::string(error.what()) + "; expected " + verb->form);
    }
    return verb->read(gathered);
}

} // namespace Cli
