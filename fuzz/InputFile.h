#pragma once

#include <filesystem>
#include <string_view>

namespace Fuzz
{

/// A folder that lives as long as the process; in memory where the system has such a place.
[[nodiscard]] const std::filesystem::path& ScratchPlace();

/// Writes an input to a file of the scratch place, over what the input before left there.
///
/// @returns its path.
[[nodiscard]] std::filesystem::path WriteInputFile(std::string_view bytes);

} // namespace Fuzz
