#pragma once

#include "host/Export.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

namespace ReferenceHost
{

/// What becomes of a file that is replaced.
enum class Backup
{
    None, ///< It is gone.
    Keep  ///< It stays beside the new one as "NAME~", in place of an earlier such file.
};

/// Whether a file that is replaced may become the property of whoever replaces it.
enum class Ownership
{
    Keep, ///< Where the system does not let its owner and group be kept, it is not replaced.
    MayChange
};

/// Nothing was replaced, because the file belongs to others and would no longer.
class STYLEPROPERTIES_HOST_API OwnerCannotBeKept : public std::system_error
{
public:
    using std::system_error::system_error;
    OwnerCannotBeKept(const OwnerCannotBeKept&) = default;
    OwnerCannotBeKept& operator=(const OwnerCannotBeKept&) = default;
    ~OwnerCannotBeKept() override;
};

/// A file that is about to be replaced, with its new bytes on disk beside it.
///
/// Whoever opens the file sees the old bytes or the new ones, also after a crash. Until it takes its place it
/// can be given up without a trace.
///
/// A file that is replaced passes on its permissions and its owner; a new one gets those that new files get.
/// A symbolic link stays, and what it leads to is replaced; other hard links go on leading to the old bytes.
class STYLEPROPERTIES_HOST_API StagedFile
{
public:
    /// Is told how many of the bytes were written; what it throws gives the file up.
    using Written = std::function<void(std::size_t bytes)>;

    /// Looks at the file behind all symbolic links; what it throws leaves the file as it is.
    using Check = std::function<void(const std::filesystem::path& file)>;

    /// Writes the bytes into a temporary file in the folder of the target and makes them last.
    ///
    /// @throws std::system_error that says what failed, OwnerCannotBeKept among them. The old file is whole
    ///         then, and nothing else is left.
    StagedFile(const std::filesystem::path& target, std::string_view bytes,
               Ownership ownership = Ownership::MayChange, const Written& written = {});

    StagedFile(StagedFile&& other) noexcept;
    StagedFile& operator=(StagedFile&&) = delete;
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// Removes what has not taken its place.
    ~StagedFile();

    /// Lets the new file take the place of the old one. Once.
    ///
    /// @param check may be empty. Of several processes that replace one file with a check, one at a time
    ///              checks and replaces.
    /// @throws std::system_error as the constructor does, and what the check throws.
    void TakePlace(Backup backup, const Check& check = {});

private:
    std::filesystem::path file;      ///< Behind all symbolic links.
    std::filesystem::path temporary; ///< Empty when there is nothing to remove.
};

/// Writes a file at once or not at all, see StagedFile.
///
/// @throws std::system_error that says what failed. The old file is whole then, and nothing else is left.
STYLEPROPERTIES_HOST_API void WriteFileAtomically(const std::filesystem::path& target, std::string_view bytes,
                                                  Backup backup = Backup::None);

} // namespace ReferenceHost
