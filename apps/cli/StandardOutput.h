#pragma once

#include "apps/cli/TextTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace Cli
{

/// Colours are for terminals whose person did not turn them off: with NO_COLOR set to anything, with TERM
/// "dumb", and for files and pipes there are none.
[[nodiscard]] Colouring ChooseColouring();

/// Writes all of `text` to the standard output.
///
/// @throws std::system_error when it cannot be written, also when whoever reads it is gone.
void WriteStandardOutput(std::string_view text);

/// Writes one line to the standard error, with the name of the program in front. Line breaks become blanks.
/// What cannot be written is lost.
void WriteErrorLine(std::string_view message);

/// Writes lines to the standard error that tell of something to know, and of no failure.
void WriteWarnings(const std::vector<std::string>& warnings);

} // namespace Cli
