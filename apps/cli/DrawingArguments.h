#pragma once

#include "apps/cli/CommandLine.h"

#include <string>

namespace CLI
{
class App;
}

namespace Cli
{

/// Lets a command take the drawing and what goes with every command about one. `options` is filled when the
/// command line is parsed, and must live until then.
void DeclareDrawing(CLI::App& command, DrawingOptions& options);

/// Lets a command take what goes with every command that reports something, without a drawing. `options` is
/// filled as DeclareDrawing() does.
void DeclareReport(CLI::App& command, DrawingOptions& options);

/// Lets a command take --select. `purpose` opens its help: "What to look at".
void DeclareSelector(CLI::App& command, std::string& selector, const std::string& purpose);

} // namespace Cli
