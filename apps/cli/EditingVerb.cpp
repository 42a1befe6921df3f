#include "apps/cli/EditingVerb.h"

#include "apps/workbench/UsageError.h"
#include "host/utils/Utf8.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
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
constexpr const char* kPresetHelp = "The name of a preset";

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

OvxStringT PanelOf(const EditingWords& words)
{
    return TextOf(words.panel.value());
}

EditingCommand ReadStyleList(const EditingWords& words)
{
    using Workbench::StyleListPart;
    return StyleListCommand{PanelOf(words), words.isMore ? StyleListPart::More : StyleListPart::Main};
}

/// An entry is picked by its name, by its id, or as the one that means no style.
Workbench::StylePick ReadPick(const EditingWords& words)
{
    const int ways = static_cast<int>(words.words.size()) + (words.id ? 1 : 0) + (words.isNone ? 1 : 0);
    if (ways != 1)
        throw UsageError((ways == 0 ? "it is not said which style" : "the style is said more than once") +
                         std::string("; expected one of NAME, --id N and --none"));
    if (words.isMore && !words.id)
        throw UsageError("--more tells which list an id is of; expected --id N beside it");
    if (words.isNone)
        return Workbench::PickNone{};
    if (!words.id)
        return Workbench::PickByName{OnlyText(words)};
    return words.isMore ? Workbench::StylePick(Workbench::PickByMoreId{*words.id})
                        : Workbench::StylePick(Workbench::PickById{*words.id});
}

EditingCommand ReadRestyle(const EditingWords& words)
{
    return RestyleCommand{PanelOf(words), ReadPick(words)};
}

EditingCommand ReadPresetAdd(const EditingWords& words)
{
    if (words.isYes && words.isNo)
        throw UsageError("--yes and --no contradict each other; expected at most one of them");
    PresetAddCommand command{PanelOf(words), OnlyText(words), std::nullopt};
    if (words.isYes || words.isNo)
        command.mayReplace = words.isYes;
    return command;
}

template <class Command>
EditingCommand ReadPreset(const EditingWords& words)
{
    return Command{PanelOf(words), OnlyText(words)};
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
     1, kAny, VerbOptions::kNone, VerbPlace::ChangesDrawing,
     "set sketch.odg --select 'name:Box*' fill.color=#3366cc outline.width=0.5mm --in-place", ReadSet},
    {"clear", "Take local values away", "clear ROW...", "ROW", kRowHelp, 1, kAny, VerbOptions::kNone,
     VerbPlace::ChangesDrawing, "clear sketch.odg fill.color -o clean.odg",
     [](const EditingWords& words) -> EditingCommand { return ClearCommand{TextsOf(words)}; }},
    {"revert", "Give up what overrides the parent style", "revert ROW|PANEL...", "ROW|PANEL", kRowOrPanelHelp,
     1, kAny, VerbOptions::kNone, VerbPlace::ChangesDrawing,
     "revert sketch.odg --select id:1/4 fill --in-place --backup",
     [](const EditingWords& words) -> EditingCommand { return RevertCommand{TextsOf(words)}; }},
    {"apply-to-parent", "Move what is set locally into the parent style", "apply-to-parent ROW|PANEL...",
     "ROW|PANEL", kRowOrPanelHelp, 1, kAny, VerbOptions::kNone, VerbPlace::ChangesDrawing,
     "apply-to-parent sketch.odg --select id:1/4 fill.color -o out.odg",
     [](const EditingWords& words) -> EditingCommand { return ApplyToParentCommand{TextsOf(words)}; }},
    {"break-link", "Keep the look of linked colours without the link to the palette", "break-link ROW...",
     "ROW", kRowHelp, 1, kAny, VerbOptions::kNone, VerbPlace::ChangesDrawing,
     "break-link sketch.odg fill.color --in-place",
     [](const EditingWords& words) -> EditingCommand { return BreakLinkCommand{TextsOf(words)}; }},
    {"create-style", "Make a named style from the selection", "create-style PANEL [--name NAME]", "PANEL",
     kPanelHelp, 1, 1, VerbOptions::kStyleName, VerbPlace::ChangesDrawing,
     "create-style sketch.odg --select id:1/4 style --name 'Blue box' -o out.odg", ReadCreateStyle},
    {"edit-style", "Tell which named style a panel opens for editing", "edit-style PANEL", "PANEL",
     kPanelHelp, 1, 1, VerbOptions::kNone, VerbPlace::ChangesDrawing,
     "edit-style sketch.odg --select id:1/4 fill --dry-run",
     [](const EditingWords& words) -> EditingCommand { return EditStyleCommand{OnlyText(words)}; }},
    {"style-list", "Show the list of styles of a panel, with the id of each entry",
     "style-list --panel PANEL [--more]", "", "", 0, 0, VerbOptions::kPanel | VerbOptions::kMore,
     VerbPlace::ReadsDrawing, "style-list sketch.odg --select id:1/4 --panel NAME", ReadStyleList},
    {"restyle", "Pick a style from the list of a panel", "restyle NAME|--id N [--more]|--none --panel PANEL",
     "NAME", "The style to pick, by its name", 0, 1,
     VerbOptions::kPanel | VerbOptions::kMore | VerbOptions::kPick, VerbPlace::ChangesDrawing,
     "restyle sketch.odg 'Blue box' --panel NAME --select id:1/4 --in-place", ReadRestyle},
    {"presets list", "List the presets of a panel", "presets list --panel PANEL", "", "", 0, 0,
     VerbOptions::kPanel, VerbPlace::WithoutDrawing, "presets list --panel NAME",
     [](const EditingWords& words) -> EditingCommand { return PresetListCommand{PanelOf(words)}; }},
    {"presets show", "Show what a preset sets", "presets show NAME --panel PANEL", "NAME", kPresetHelp, 1, 1,
     VerbOptions::kPanel, VerbPlace::WithoutDrawing, "presets show Warm --panel NAME",
     ReadPreset<PresetShowCommand>},
    {"presets apply", "Give the selection what a preset sets", "presets apply NAME --panel PANEL", "NAME",
     kPresetHelp, 1, 1, VerbOptions::kPanel, VerbPlace::ChangesDrawing,
     "presets apply sketch.odg Warm --panel NAME --select page:1 --in-place", ReadPreset<PresetApplyCommand>},
    {"presets add", "Keep the first object of the selection as a preset",
     "presets add NAME --panel PANEL [--yes|--no]", "NAME", "What the preset is called", 1, 1,
     VerbOptions::kPanel | VerbOptions::kReplace, VerbPlace::ReadsDrawing,
     "presets add sketch.odg Warm --panel NAME --select id:1/4", ReadPresetAdd},
    {"presets delete", "Drop a preset", "presets delete NAME --panel PANEL", "NAME", kPresetHelp, 1, 1,
     VerbOptions::kPanel, VerbPlace::WithoutDrawing, "presets delete Warm --panel NAME",
     ReadPreset<PresetDeleteCommand>},
    {"palette", "Define colours of the drawing's palette", "palette NAME=COLOUR...", "ASSIGNMENT",
     "NAME=COLOUR: an entry of the palette, new or not, and its look: Sea=#3366cc", 1, kAny,
     VerbOptions::kNone, VerbPlace::ChangesDrawing, "palette sketch.odg Sea=#3366cc Sand=#e9c46a --in-place",
     ReadPalette},
    {"select", "Choose what the next commands are about", "select SELECTOR", "SELECTOR", "", 1, 1,
     VerbOptions::kNone, VerbPlace::ScriptsOnly, nullptr,
     [](const EditingWords& words) -> EditingCommand
     { return SelectCommand{Workbench::ParseSelector(OnlyText(words))}; }},
    {"undo", "Take the last step back", "undo", "", "", 0, 0, VerbOptions::kNone, VerbPlace::ScriptsOnly,
     nullptr, [](const EditingWords&) -> EditingCommand { return UndoCommand{}; }},
    {"redo", "Do again what was taken back", "redo", "", "", 0, 0, VerbOptions::kNone, VerbPlace::ScriptsOnly,
     nullptr, [](const EditingWords&) -> EditingCommand { return RedoCommand{}; }},
    {"begin-group", "Let the next commands be one step", "begin-group", "", "", 0, 0, VerbOptions::kNone,
     VerbPlace::ScriptsOnly, nullptr,
     [](const EditingWords&) -> EditingCommand { return BeginGroupCommand{}; }},
    {"end-group", "End the step, or give it up", "end-group [--cancel]", "", "", 0, 0, VerbOptions::kCancel,
     VerbPlace::ScriptsOnly, nullptr,
     [](const EditingWords& words) -> EditingCommand { return EndGroupCommand{words.isCancelled}; }},
    {"show", "Show what the panels show", "show [PANEL]", "PANEL", "", 0, 1, VerbOptions::kNone,
     VerbPlace::ScriptsOnly, nullptr, ReadShow},
};

std::string ListVerbs()
{
    std::string list;
    for (const EditingVerb& verb : kVerbs)
        list += (list.empty() ? "" : ", ") + std::string(verb.name);
    return list;
}

void DeclareOptions(CLI::App& parser, unsigned options, EditingWords& words)
{
    using namespace VerbOptions;
    if ((options & kStyleName) != 0)
        parser.add_option("--name", words.styleName, "What the new style is called")->option_text("NAME");
    if ((options & kCancel) != 0)
        parser.add_flag("--cancel", words.isCancelled, "Give up what the group changed");
    if ((options & kPanel) != 0)
        parser.add_option("--panel", words.panel, "The panel that it is about")
            ->required()
            ->option_text("PANEL");
    if ((options & kMore) != 0)
        parser.add_flag("--more", words.isMore, "The list of the styles that the main list does not show");
    if ((options & kPick) != 0)
    {
        parser.add_option("--id", words.id, "The style to pick, by the id that style-list shows")
            ->option_text("N");
        parser.add_flag("--none", words.isNone,
                        "Let the first object of the selection inherit from no style");
    }
    if ((options & kReplace) != 0)
    {
        parser.add_flag("--yes", words.isYes, "Replace a preset of that name without asking");
        parser.add_flag("--no", words.isNo, "Leave a preset of that name as it is without asking");
    }
}

/// The command that begins the words; null for none.
const EditingVerb* FindVerb(const std::vector<std::string>& words)
{
    const std::string pair = words.size() > 1 ? words[0] + " " + words[1] : words[0];
    const auto* const verb = std::ranges::find_if(kVerbs, [&](const EditingVerb& each)
                                                  { return each.name == words[0] || each.name == pair; });
    return verb == std::end(kVerbs) ? nullptr : verb;
}

} // namespace

std::size_t CountWords(const EditingVerb& verb)
{
    return std::string_view(verb.name).find(' ') == std::string_view::npos ? 1 : 2;
}

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
    DeclareOptions(parser, verb.options, words);
}

std::string NameOfCommand(const std::vector<std::string>& words)
{
    const EditingVerb* const verb = FindVerb(words);
    return verb == nullptr ? words.front() : verb->name;
}

EditingCommand ReadEditingCommand(const std::vector<std::string>& words)
{
    const EditingVerb* const verb = FindVerb(words);
    if (verb == nullptr)
        throw UsageError("\"" + words.front() + "\" is no command; expected one of " + ListVerbs());
    EditingWords gathered;
    CLI::App parser;
    parser.set_help_flag();
    DeclareWords(parser, *verb, gathered);
    try
    {
        // The parser takes words from the end of its list.
        const auto behindName = words.rend() - static_cast<std::ptrdiff_t>(CountWords(*verb));
        parser.parse(std::vector<std::string>(words.rbegin(), behindName));
    }
    catch (const CLI::ParseError& error)
    {
        throw UsageError(std::string(error.what()) + "; expected " + verb->form);
    }
    return verb->read(gathered);
}

} // namespace Cli
