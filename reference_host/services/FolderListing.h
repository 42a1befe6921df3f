#pragma once

#include <filesystem>
#include <vector>

namespace ReferenceHost
{

/// What lies in a folder, each with the folder in front, in no order; nothing when the folder is missing or
/// cannot be read.
///
/// In place of the standard's iterator, which ends the program in some libraries when memory is short.
///
/// @throws std::bad_alloc when memory is short.
[[nodiscard]] std::vector<std::filesystem::path> ListFolder(const std::filesystem::path& folder);

} // namespace ReferenceHost
