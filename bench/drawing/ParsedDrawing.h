#pragma once

#include <cstddef>
#include <filesystem>

namespace Bench
{

/// Parses a drawing with pugixml and nothing else, and visits every element and attribute once.
///
/// @returns how many shapes there are: elements that have a graphic style.
[[nodiscard]] std::size_t CountShapes(const std::filesystem::path& drawing);

} // namespace Bench
