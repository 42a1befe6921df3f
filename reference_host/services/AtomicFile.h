#pragma once

#include "host/Export.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

namespace ReferenceHost
{

/// What becomes of a file that is replaced.
enum class Backup
{
    None, ///< It is gone.
    Keep  ///< It stays beside the new one as "NAME~", in place of an earlier such file.
};

/// A file that is about to be replaced, with its new bytes on disk beside it.
///
/// Whoever opens the file sees the old bytes or the new ones, also after a crash. Until it takes its place it
/// can be given up without a trace.
///
/// A file that is replaced passes on its permissions, and its owner where the system allows that; a new one
/// gets those that new files get. A symbolic link stays, and what it leads to is replaced.
class STYLEPROPERTIES_HOST_API StagedFile
{
public:
    /// Is told how many of the bytes were written; what it throws gives the file up.
    using Written = std::function<void(std::size_t bytes)>;

    /// Writes the bytes into a temporary file in the folder of the target and makes them last.
    ///
    /// @throws std::system_error that says what failed. The old file is whole then, and nothing else is left.
    StagedFile(const std::filesystem::path& target, std::string_view bytes, const Written& written = {});

    StagedFile(StagedFile&& other) noexcept;
    StagedFile& operator=(StagedFile&&) = delete;
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// Removes what has not taken its place.
    ~StagedFile();

    /// Lets the new file take the place of the old one. Once.
    ///
    /// @throws std::system_error as the constructor does.
    void TakePlace(Backup backup);

private:
    std::filesystem::path file;      ///< Behind all symbolic links.
    std::filesystem::path temporary; ///< Empty when there is nothing to remove.
};

/// Writes a file at once or not at all, see StagedFile.
///
/// @throws std::system_error that says what failed. The old file is whole then, and nothing else is left.
STYLEPROPERTIES_HOST_API void WriteFileAtomically(const std::filesystem::path& target, std::string_view bytes,
                                                  Backup backup);

} // namespace ReferenceHost
