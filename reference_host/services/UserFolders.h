#pragma once

#include "host/Export.h"

#include <filesystem>

namespace ReferenceHost
{

/// Where this system keeps the person's configuration: XDG_CONFIG_HOME, else ".config" in the home folder.
/// Empty when there is no home folder.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::filesystem::path FindConfigurationHome();

/// Where the person keeps documents: as the file "user-dirs.dirs" of the configuration says, else "Documents"
/// in the home folder. Empty when there is no home folder.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::filesystem::path FindDocumentsFolder();

/// The value of an environment variable as a path; empty when it is not set.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::filesystem::path FindEnvironmentPath(const char* variable);

} // namespace ReferenceHost
