#pragma once

#include "host/Export.h"

#include <filesystem>
#include <string_view>

namespace ReferenceHost
{

/// What becomes of a file that is replaced.
enum class Backup
{
    None, ///< It is gone.
    Keep  ///< It stays beside the new one as "NAME~", in place of an earlier such file.
};

/// Writes a file at once or not at all: into a temporary file in the same folder, which then takes its place.
/// Whoever opens the file sees the old bytes or the new ones, also after a crash.
///
/// A file that is replaced passes on its permissions, and its owner where the system allows that; a new one
/// gets those that new files get. A symbolic link stays, and what it leads to is replaced.
///
/// @throws std::system_error that says what failed. The old file is whole then, and nothing else is left.
STYLEPROPERTIES_HOST_API void WriteFileAtomically(const std::filesystem::path& target, std::string_view bytes,
                                                  Backup backup);

} // namespace ReferenceHost
