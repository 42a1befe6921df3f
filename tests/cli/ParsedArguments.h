#pragma once

#include "apps/cli/CommandLine.h"

#include <string>
#include <vector>

namespace CliTests
{

/// What the tool reads from these arguments.
[[nodiscard]] Cli::Command Parse(std::vector<const char*> arguments);

/// What the tool says of arguments that it cannot understand; "no error" of those that it can.
[[nodiscard]] std::string ErrorOf(const std::vector<const char*>& arguments);

} // namespace CliTests
