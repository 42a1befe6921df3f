#pragma once

#include "apps/cli/EditingCommand.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Cli
{

/// A script that cannot be read, or one of its commands that cannot be done.
///
/// what() is one line in UTF-8 that begins with the script and the line: "edits.txt, line 3: ...".
class ScriptError : public std::runtime_error
{
public:
    ScriptError(const std::string& script, std::size_t line, const std::string& problem)
        : std::runtime_error(script + ", line " + std::to_string(line) + ": " + problem)
    {
    }
};

/// A command of a script and where it stands.
struct ScriptCommand
{
    std::size_t line = 0; ///< From 1.
    EditingCommand command;
};

/// Commands for one open drawing, in order.
struct EditScript
{
    std::string name; ///< What messages call it, UTF-8.
    std::vector<ScriptCommand> commands;
};

/// The most that a script may hold.
inline constexpr std::size_t kLargestScript = std::size_t{16} << 20U;    ///< Bytes of all lines.
inline constexpr std::size_t kLongestScriptLine = std::size_t{1} << 16U; ///< Bytes of one line.
inline constexpr std::size_t kMostScriptLines = 100'000;

/// Reads a script: one command a line, as on the command line without the file and where to write.
///
/// UTF-8, with or without a byte order mark; lines end with a line feed, before which a carriage return is
/// passed over. SplitWords() tells how a line is written. Groups must be closed, and hold nothing but
/// commands that change the drawing.
///
/// @throws ScriptError for the first line that is wrong.
[[nodiscard]] EditScript ParseEditScript(const std::string& name, std::string_view text);

/// Reads a script from a file, or from the standard input for "-".
///
/// @throws ReferenceHost::DocumentError when it cannot be read or is larger than a script may be, ScriptError
///         as ParseEditScript() does.
[[nodiscard]] EditScript ReadEditScript(const std::string& source);

} // namespace Cli
