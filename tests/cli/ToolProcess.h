#pragma once

#include <map>
#include <string>
#include <vector>

namespace CliTests
{

/// What a run of the tool left.
struct ToolResult
{
    int status = -1;    ///< The exit status; above 128 when a signal ended the tool.
    std::string output; ///< The standard output; on a terminal both outputs.
    std::string error;  ///< The standard error.
};

/// Where the standard output of the tool goes.
enum class OutputKind
{
    File,
    Terminal,
    ClosedPipe, ///< A pipe that nobody reads.
    FullDevice  ///< A device without room.
};

/// One run of the tool as it was built, in a process of its own.
///
/// The environment is that of the test without what steers the tool: no language, no panel folder, no colours
/// turned off, and a terminal that can show colours.
class ToolProcess
{
public:
    explicit ToolProcess(std::vector<std::string> toolArguments) : arguments(std::move(toolArguments)) {}

    /// Sets a variable of the environment.
    ToolProcess& With(const std::string& variable, const std::string& value);

    ToolProcess& To(OutputKind kind);

    /// What the tool finds on its standard input; nothing without this.
    ToolProcess& From(const std::string& text);

    [[nodiscard]] ToolResult Run() const;

private:
    std::vector<std::string> arguments;
    std::map<std::string, std::string> variables;
    std::string input;
    OutputKind outputKind = OutputKind::File;
};

/// Runs the tool with its outputs going to files.
[[nodiscard]] ToolResult RunTool(std::vector<std::string> arguments);

} // namespace CliTests
