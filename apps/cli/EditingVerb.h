#pragma once

#include "apps/cli/EditingCommand.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace Cli
{

/// What is written behind an editing command's name, apart from the file and where to write.
struct EditingWords
{
    std::vector<std::string> words;
    std::optional<std::string> styleName; ///< Behind --name.
    bool isCancelled = false;
    std::optional<std::string> panel; ///< Behind --panel.
    std::optional<unsigned> id;       ///< Behind --id.
    bool isNone = false;
    bool isMore = false;
    bool isYes = false;
    bool isNo = false;
};

/// What a command is about when it stands on the command line. In scripts all of them stand.
enum class VerbPlace
{
    ChangesDrawing,
    ReadsDrawing,
    WithoutDrawing,
    ScriptsOnly ///< It means nothing outside a sequence of commands.
};

/// The options that a command may take, apart from those that all take; to be joined by "|".
namespace VerbOptions
{
inline constexpr unsigned kNone = 0;
inline constexpr unsigned kStyleName = 1U << 0U; ///< --name
inline constexpr unsigned kCancel = 1U << 1U;    ///< --cancel
inline constexpr unsigned kPanel = 1U << 2U;     ///< --panel, which has to be given
inline constexpr unsigned kMore = 1U << 3U;      ///< --more
inline constexpr unsigned kPick = 1U << 4U;      ///< --id and --none
inline constexpr unsigned kReplace = 1U << 5U;   ///< --yes and --no
} // namespace VerbOptions

/// An editing command as it is written, on the command line and in scripts alike.
struct EditingVerb
{
    static constexpr int kAnyNumber = -1;

    const char* name; ///< One word, or two: a group of commands and one of them.
    const char* summary;
    const char* form;      ///< How it is written, without the file and where to write.
    const char* wordsName; ///< What stands behind it; empty for nothing.
    const char* wordsHelp;
    int fewestWords;
    int mostWords;    ///< Or kAnyNumber.
    unsigned options; ///< VerbOptions.
    VerbPlace place;
    const char* example; ///< The command line of an example; null for ScriptsOnly.

    /// Reads the words. Throws Workbench::UsageError for what cannot be understood without a drawing.
    EditingCommand (*read)(const EditingWords& words);
};

/// All editing commands, in the order in which they are explained.
[[nodiscard]] std::span<const EditingVerb> GetEditingVerbs();

/// How many words the name of a command has.
[[nodiscard]] std::size_t CountWords(const EditingVerb& verb);

/// Makes a parser take the words of a command. `words` is filled when it parses, and must live until then.
void DeclareWords(CLI::App& parser, const EditingVerb& verb, EditingWords& words);

/// The name of the command that begins the words, of which there is at least one; the first word for none.
[[nodiscard]] std::string NameOfCommand(const std::vector<std::string>& words);

/// Reads a command from a script: its name and what stands behind it.
///
/// @param words at least one.
/// @throws Workbench::UsageError when it cannot be understood, with how it is written.
[[nodiscard]] EditingCommand ReadEditingCommand(const std::vector<std::string>& words);

} // namespace Cli
