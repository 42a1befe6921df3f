#pragma once

namespace Desktop
{

/// Runs the window, and answers with the exit status: 0, 1 for what cannot be read or written, 2 for wrong
/// usage.
int RunWindow(int argumentCount, char** arguments);

} // namespace Desktop
