#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <filesystem>
#include <string>

namespace ReferenceHost
{

/// A path as UTF-8, for messages and files.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::string PathToUtf8(const std::filesystem::path& path);

/// A path as wide text.
[[nodiscard]] STYLEPROPERTIES_HOST_API OvxStringT PathToText(const std::filesystem::path& path);

/// The path that a wide text stands for.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::filesystem::path PathFromText(const OvxStringT& text);

} // namespace ReferenceHost
