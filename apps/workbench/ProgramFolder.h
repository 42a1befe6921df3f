#pragma once

#include <filesystem>

namespace Workbench
{

/// The folder of the running program; empty where the system does not tell.
[[nodiscard]] std::filesystem::path FindProgramFolder();

} // namespace Workbench
