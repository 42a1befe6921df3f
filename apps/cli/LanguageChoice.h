#pragma once

#include "apps/cli/CommandLine.h"

namespace Cli
{

/// Puts the language into force that the options ask for, else English for programs, and that of the locale
/// for people.
///
/// @throws Workbench::UsageError for a language without texts, with those that there are.
void ChooseLanguage(const DrawingOptions& options);

} // namespace Cli
