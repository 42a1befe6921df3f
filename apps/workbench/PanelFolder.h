#pragma once

#include "apps/workbench/PanelDescription.h"
#include "host/utils/OvxStringT.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Workbench
{

/// The panels that a folder describes.
struct PanelFolder
{
    std::vector<PanelDescription> panels; ///< In the order in which panels are shown.
    std::vector<std::string> problems;    ///< One line in UTF-8 for each description that cannot be used.
};

/// The folder in which panels are looked for: the chosen one, else that of the environment variable
/// STYLEPROPS_PANELS when it is set and not empty, else the first of the built-in places that exists, else
/// the first of them. The built-in places lie beside the program, as installed and as built.
[[nodiscard]] std::filesystem::path FindPanelFolder(const std::optional<std::filesystem::path>& chosen);

/// Reads all descriptions of a folder. One that is bad, or that takes a name or category which another one or
/// the host has already, is a problem and leaves the others alone; so is a module that no description names.
///
/// @throws ReferenceHost::DocumentError when there is no such folder, or no description in it.
[[nodiscard]] PanelFolder ReadPanelFolder(const std::filesystem::path& folder);

/// The panels with these names, in the order of the folder; all of them when no names are given.
///
/// @throws UsageError for a name that none of them has, with the names that there are.
[[nodiscard]] std::vector<PanelDescription> ChoosePanels(const PanelFolder& folder,
                                                         const std::vector<OvxStringT>& names);

} // namespace Workbench
