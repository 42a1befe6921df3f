#pragma once

#include "apps/cli/CommandLine.h"
#include "apps/cli/EditRun.h"
#include "apps/cli/TextTable.h"
#include "apps/workbench/Change.h"
#include "apps/workbench/PanelDescription.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace Cli
{

/// What became of a drawing that was edited.
struct EditResult
{
    std::filesystem::path file;                     ///< The drawing that was read.
    std::filesystem::path savedAs;                  ///< Empty when nothing was saved.
    std::vector<std::filesystem::path> savedSheets; ///< Style sheets that were saved with the drawing.
    bool isDryRun = false;
    bool isScript = false;
    std::vector<EditAnswer> answers;
    std::vector<Workbench::Change> changes;
    std::size_t steps = 0; ///< That could be undone at the end.
};

/// The result as people read it: what the commands told, where the drawing went, and a line for each change
/// with what was changed, in which property, from and to which value, and the state now. A row that had no
/// value and has none is left out.
///
/// @param panels those whose rows were changed; numbers are shown in the unit of their row.
/// @returns UTF-8, every line ended.
[[nodiscard]] std::string EditResultToText(const EditResult& result,
                                           const std::vector<Workbench::PanelDescription>& panels,
                                           Colouring colouring);

/// The result as programs read it, the whole document; docs/json-format.md tells every field.
[[nodiscard]] std::string EditResultToJson(const EditResult& result);

} // namespace Cli
