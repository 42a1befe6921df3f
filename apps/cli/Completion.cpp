// What can be typed next. The place in the command line is found as the parser would find it: commands,
// options with and without a value, and what stands between them.

#include "apps/cli/Completion.h"

#include "apps/workbench/PanelFolder.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/resources/Language.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace Cli
{
namespace
{

/// Where the last word stands.
struct Place
{
    const CLI::App* command = nullptr;
    const CLI::Option* awaiting = nullptr; ///< The option whose value the word is; null for another word.
    std::size_t operands = 0;              ///< How many stand before the word.
    bool isBehindDashes = false;           ///< Behind "--" everything is an operand.
    std::optional<std::filesystem::path> panelFolder; ///< The one that was chosen before.
};

/// The beginning of an option's or a command's description, for a list.
std::string Summarize(const std::string& description)
{
    std::string summary = description.substr(0, description.find('\n'));
    for (const char* const explanation : {": ", " (", "; "})
        summary.resize(std::min(summary.size(), summary.find(explanation)));
    return summary;
}

/// Gathers the lines that begin with what is typed.
class Candidates
{
public:
    /// `beforeWord` stands before every word, as the option does in "--panel=NAME".
    explicit Candidates(std::string_view typedWord, std::string_view beforeWord = {})
        : typed(typedWord), before(beforeWord)
    {
    }

    void Add(const std::string& word, const std::string& description = {})
    {
        if (!word.starts_with(typed))
            return;
        const std::string meaning = Summarize(description);
        lines += before + word + (meaning.empty() ? "" : "\t" + meaning) + "\n";
    }

    /// Shells complete whole words: behind an option in the same word there are no files.
    void AskForFiles(const std::string& kind) { lines += before.empty() ? kind + "\n" : ""; }

    [[nodiscard]] std::string_view Typed() const { return typed; }

    [[nodiscard]] const std::string& Lines() const { return lines; }

private:
    std::string_view typed;
    std::string before;
    std::string lines;
};

bool TakesValue(const CLI::Option& option)
{
    return option.get_items_expected_max() > 0;
}

bool HasName(const CLI::Option& option, const std::string& name)
{
    return option.nonpositional() && option.check_name(name);
}

const CLI::Option* FindOption(const CLI::App& command, const std::string& name)
{
    const auto found = command.get_options([&](const CLI::Option* option) { return HasName(*option, name); });
    return found.empty() ? nullptr : found.front();
}

const CLI::App* FindCommand(const CLI::App& command, std::string_view name)
{
    const auto found =
        command.get_subcommands([&](const CLI::App* each) { return each->get_name() == name; });
    return found.empty() ? nullptr : found.front();
}

void NoteValue(Place& place, const CLI::Option& option, std::string_view value)
{
    if (HasName(option, "--panels"))
        place.panelFolder = std::filesystem::path(value);
}

void PassOption(Place& place, std::string_view word)
{
    const std::size_t equals = word.find('=');
    const CLI::Option* const option = FindOption(*place.command, std::string(word.substr(0, equals)));
    if (option == nullptr || !TakesValue(*option))
        return;
    if (equals == std::string_view::npos)
        place.awaiting = option;
    else
        NoteValue(place, *option, word.substr(equals + 1));
}

void PassWord(Place& place, std::string_view word)
{
    if (place.awaiting != nullptr)
        NoteValue(place, *std::exchange(place.awaiting, nullptr), word);
    else if (word == "--")
        place.isBehindDashes = true;
    else if (!place.isBehindDashes && word.size() > 1 && word.front() == '-')
        PassOption(place, word);
    else if (const CLI::App* const inner = FindCommand(*place.command, word))
        place.command = inner;
    else
        ++place.operands;
}

Workbench::PanelFolder ReadPanels(const Place& place)
{
    try
    {
        return Workbench::ReadPanelFolder(Workbench::FindPanelFolder(place.panelFolder));
    }
    catch (const ReferenceHost::DocumentError&)
    {
        return {};
    }
}

void AddPanels(Candidates& candidates, const Place& place)
{
    for (const Workbench::PanelDescription& panel : ReadPanels(place).panels)
        candidates.Add(OvxUtils::ToUtf8(panel.name));
}

/// A row as people type it, with `tail` behind it.
template <class Visitor>
void ForEachRow(const Place& place, const Visitor& visit)
{
    const Workbench::PanelFolder folder = ReadPanels(place);
    for (const Workbench::PanelDescription& panel : folder.panels)
    {
        for (const Workbench::RowDescription& row : panel.rows)
            visit(OvxUtils::ToUtf8(panel.name) + "." + OvxUtils::ToUtf8(row.identifier), row);
    }
}

void AddRows(Candidates& candidates, const Place& place)
{
    ForEachRow(place,
               [&](const std::string& name, const Workbench::RowDescription&) { candidates.Add(name); });
}

/// Rows with the sign behind them; once that is typed, what the row offers.
void AddAssignments(Candidates& candidates, const Place& place)
{
    const bool hasRow = candidates.Typed().find('=') != std::string_view::npos;
    ForEachRow(place,
               [&](const std::string& name, const Workbench::RowDescription& row)
               {
                   if (!hasRow)
                       candidates.Add(name + "=");
                   for (std::size_t i = 0; hasRow && i < row.choices.size(); ++i)
                       candidates.Add(name + "=" + OvxUtils::ToUtf8(row.choices[i].value));
               });
}

void AddSelectors(Candidates& candidates)
{
    candidates.Add("all", "every object");
    candidates.Add("defaults", "the default style of the drawing");
    candidates.Add("page:", "the objects of a page, from 1");
    candidates.Add("name:", "objects and groups by name");
    candidates.Add("style:", "objects by their named style");
    candidates.Add("kind:", "objects by kind");
    candidates.Add("id:", "page, position on the page, positions inside groups");
    candidates.Add("sheet:", "a named style itself");
}

/// What a value or an operand may be, by the word that stands for it in the help.
void AddValues(Candidates& candidates, const Place& place, const CLI::Option& option)
{
    const std::string name = option.nonpositional() ? option.get_option_text() : option.get_name(true);
    if (name == "FILE" || name == "OUT")
        candidates.AskForFiles(":drawings");
    else if (name == "EDITS")
        candidates.AskForFiles(":files");
    else if (name == "DIR")
        candidates.AskForFiles(":folders");
    else if (name == "SELECTOR")
        AddSelectors(candidates);
    else if (name == "ASSIGNMENT" && option.get_description().starts_with("ROW="))
        AddAssignments(candidates, place);
    if (name == "ROW" || name == "ROW|PANEL")
        AddRows(candidates, place);
    if (name == "PANEL" || name == "ROW|PANEL" || HasName(option, "--panel"))
        AddPanels(candidates, place);
    if (name == "LANG")
    {
        for (const std::string& language : ReferenceHost::GetLanguages())
            candidates.Add(language);
    }
}

std::string ValuesOf(const Place& place, const CLI::Option& option, std::string_view typed,
                     std::string_view before)
{
    Candidates candidates(typed, before);
    AddValues(candidates, place, option);
    return candidates.Lines();
}

std::string OptionsOf(const CLI::App& command, std::string_view typed)
{
    Candidates candidates(typed);
    for (const CLI::Option* const option : command.get_options())
    {
        for (const std::string& name : option->get_lnames())
            candidates.Add("--" + name, option->get_description());
        for (const std::string& name : option->get_snames())
            candidates.Add("-" + name, option->get_description());
    }
    return candidates.Lines();
}

/// The operand at the place; the last one takes all that follow when it takes more than one.
const CLI::Option* FindOperand(const Place& place)
{
    const auto operands =
        place.command->get_options([](const CLI::Option* option) { return option->get_positional(); });
    if (place.operands < operands.size())
        return operands[place.operands];
    const bool takesMore = !operands.empty() && operands.back()->get_items_expected_max() > 1;
    return takesMore ? operands.back() : nullptr;
}

std::string OperandsAt(const Place& place, std::string_view typed)
{
    Candidates candidates(typed);
    const auto commands = place.command->get_subcommands([](const CLI::App*) { return true; });
    for (const CLI::App* const each : commands)
        candidates.Add(each->get_name(), each->get_description());
    if (const CLI::Option* const operand = FindOperand(place))
        AddValues(candidates, place, *operand);
    return candidates.Lines();
}

} // namespace

std::string CompleteLastWord(const CLI::App& app, std::span<const char* const> words)
{
    Place place;
    place.command = &app;
    for (std::size_t i = 0; i + 1 < words.size(); ++i)
        PassWord(place, words[i]);
    const std::string_view last = words.empty() ? "" : words.back();
    if (place.awaiting != nullptr)
        return ValuesOf(place, *place.awaiting, last, {});
    if (place.isBehindDashes || !last.starts_with('-'))
        return OperandsAt(place, last);
    const std::size_t equals = last.find('=');
    if (equals == std::string_view::npos)
        return OptionsOf(*place.command, last);
    const CLI::Option* const option = FindOption(*place.command, std::string(last.substr(0, equals)));
    const bool isKnown = option != nullptr && TakesValue(*option);
    return isKnown ? ValuesOf(place, *option, last.substr(equals + 1), last.substr(0, equals + 1)) : "";
}

} // namespace Cli
