#pragma once

#include "apps/cli/TextTable.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/TargetHandover.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Cli
{

/// A report as people read it: what is selected, and for each panel its title and a line for each row with
/// icon, label, value and state. In the language in force.
[[nodiscard]] std::vector<TextLine> ReportToText(const std::filesystem::path& file,
                                                 const Workbench::Report& report);

/// What a preset sets as people read it: a line for each row of the panel that it sets.
[[nodiscard]] std::vector<TextLine> PresetRowsToText(const OvxStringT& presetName,
                                                     const Workbench::PanelReport& panel);

/// The sheet as people read it: a tree of the named styles, each under the one it inherits from.
[[nodiscard]] std::vector<TextLine> StylesToText(const std::vector<Workbench::NamedStyleFacts>& styles);

} // namespace Cli
