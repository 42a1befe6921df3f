#pragma once

#include <span>
#include <string>

namespace CLI
{
class App;
}

namespace Cli
{

/// What the shells' completion scripts ask in place of a command: "complete" and the words behind the
/// program's name, the last of which is being typed and may be empty.
inline constexpr const char* kCompletionRequest = "complete";

/// What may stand in place of the last of `words`, as a line for each: the word, and its meaning behind a
/// tab where it has one. All begin with what is typed already.
///
/// Commands and options are read out of `app`, the parser itself, and panels, rows and their values out of
/// the descriptions in the panel folder that the words choose, so that nothing can be missing. Lines that are
/// no words ask the shell for files: ":drawings", ":files" and ":folders".
///
/// Nothing is an error here: where nothing is known, or a folder cannot be read, there are fewer lines.
[[nodiscard]] std::string CompleteLastWord(const CLI::App& app, std::span<const char* const> words);

} // namespace Cli
