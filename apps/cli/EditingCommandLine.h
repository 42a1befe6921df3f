#pragma once

#include "apps/cli/CommandLine.h"
#include "apps/cli/EditingVerb.h"

#include <optional>
#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace Cli
{

/// The commands of the tool that change a drawing, and those about what its panels offer, for the parser of
/// the command line.
///
/// The parser fills it, so that it has to live until the parser has run.
class EditingCommandLine
{
public:
    /// Adds the commands to `app`.
    explicit EditingCommandLine(CLI::App& app);

    EditingCommandLine(const EditingCommandLine&) = delete;
    EditingCommandLine& operator=(const EditingCommandLine&) = delete;

    /// What the parser found, after it ran; none when another command was named.
    ///
    /// @throws Workbench::UsageError for options that do not go together, and for words that cannot be
    ///         understood.
    [[nodiscard]] std::optional<Command> GetParsed() const;

private:
    struct VerbCommand
    {
        const EditingVerb* verb;
        const CLI::App* command; ///< Borrowed from the parser.
    };

    CLI::App& AddCommand(CLI::App& app, const EditingVerb& verb);
    CLI::App& AddCommand(CLI::App& app, const std::string& name, const std::string& summary, VerbPlace place);
    void AddScriptCommand(CLI::App& app);

    EditedDrawing edited;
    EditingWords words;
    std::string script;
    std::vector<VerbCommand> verbCommands;
    const CLI::App* scriptCommand = nullptr; ///< Borrowed from the parser.
};

} // namespace Cli
