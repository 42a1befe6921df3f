#pragma once

#include <filesystem>

namespace WorkbenchTests
{

/// Tells whether this process holds the shared library of a file.
[[nodiscard]] bool IsInMemory(const std::filesystem::path& library);

} // namespace WorkbenchTests
