#pragma once

#include "apps/cli/CommandLine.h"

namespace Cli
{

/// Runs one editing command, saves the drawing where the options say, and writes what changed.
///
/// A panel that cannot be used is a warning: what is asked of it is not there.
///
/// @throws Workbench::UsageError, and std::runtime_error for all that cannot be done; then nothing was
///         written, unless it is the report itself that cannot be written.
void RunEdit(const EditOptions& options);

/// Runs a script of editing commands, saves the drawing once, and writes what changed.
///
/// @throws as RunEdit() does; ScriptError for what is wrong with the script.
void RunEditScript(const ScriptOptions& options);

/// Runs one command that changes no drawing, and writes what it tells.
///
/// @throws as RunEdit() does.
void RunAsk(const AskOptions& options);

} // namespace Cli
