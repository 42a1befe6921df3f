#pragma once

#include "apps/workbench/PanelDescription.h"

#include <filesystem>
#include <string_view>

namespace Workbench
{

/// What the name of a description ends in.
inline constexpr std::string_view kPanelDescriptionSuffix = ".panel.xml";

/// Reads a panel description.
///
/// The form is strict: whatever is missing, unknown, doubled or out of place is an error, so that a misspelt
/// attribute does not go unseen.
///
/// @throws ReferenceHost::DocumentError with file, line, element and what was expected.
[[nodiscard]] PanelDescription ReadPanelDescription(const std::filesystem::path& file);

/// Reads a panel description from its text; `file` is for errors.
///
/// @throws ReferenceHost::DocumentError as ReadPanelDescription().
[[nodiscard]] PanelDescription ParsePanelDescription(std::string_view text,
                                                     const std::filesystem::path& file);

} // namespace Workbench
