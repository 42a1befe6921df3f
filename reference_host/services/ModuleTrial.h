#pragma once

#include "host/Export.h"

#include <chrono>
#include <filesystem>

namespace ReferenceHost
{

/// How long a module may take to be loaded and unloaded.
inline constexpr std::chrono::seconds kModuleTrialLimit{10};

/// Loads a module and unloads it again in a process of its own, which nothing here notices.
///
/// What a static object of a module throws can be caught by nobody: the system's loader is not made to be
/// left that way, and the program ends. So does one that crashes. Here it is the other process that ends.
///
/// A file that is no module passes: the system says what is wrong with it when it is loaded. So does every
/// file where no process can be made, and on Windows.
///
/// @throws ModuleError for a module that ends the process that loads it, or does not finish within `limit`.
STYLEPROPERTIES_HOST_API void TryModule(const std::filesystem::path& file,
                                        std::chrono::seconds limit = kModuleTrialLimit);

} // namespace ReferenceHost
