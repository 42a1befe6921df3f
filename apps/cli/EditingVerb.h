#pragma once

#include "apps/cli/EditingCommand.h"

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
};

/// Where an editing command may stand.
enum class VerbPlace
{
    Everywhere,
    ScriptsOnly ///< It means nothing outside a sequence of commands.
};

/// An editing command as it is written, on the command line and in scripts alike.
struct EditingVerb
{
    static constexpr int kAnyNumber = -1;

    const char* name;
    const char* summary;
    const char* form;      ///< How it is written, without the file and where to write.
    const char* wordsName; ///< What stands behind it; empty for nothing.
    const char* wordsHelp;
    int fewestWords;
    int mostWords; ///< Or kAnyNumber.
    bool takesStyleName;
    bool takesCancel;
    VerbPlace place;
    const char* example; ///< The command line of an example; null for ScriptsOnly.

    /// Reads the words. Throws Workbench::UsageError for what cannot be understood without a drawing.
    EditingCommand (*read)(const EditingWords& words);
};

/// All editing commands, in the order in which they are explained.
[[nodiscard]] std::span<const EditingVerb> GetEditingVerbs();

/// Makes a parser take the words of a command. `words` is filled when it parses, and must live until then.
void DeclareWords(CLI::App& parser, const EditingVerb& verb, EditingWords& words);

/// Reads a command from a script: its name and what stands behind it.
///
/// @param words at least one.
/// @throws Workbench::UsageError when it cannot be understood, with how it is written.
[[nodiscard]] EditingCommand ReadEditingCommand(const std::vector<std::string>& words);

} // namespace Cli
