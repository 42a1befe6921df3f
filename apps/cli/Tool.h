#pragma once

namespace Cli
{

/// Runs the tool and reports errors, each as one line on the standard error.
///
/// @returns the exit status: 0; 1 for bad input, a selector without matches, or output that cannot be
///          written; 2 for wrong usage.
[[nodiscard]] int RunTool(int argumentCount, const char* const* arguments);

} // namespace Cli
