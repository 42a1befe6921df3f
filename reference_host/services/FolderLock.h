#pragma once

#include "host/Export.h"

#include <filesystem>

namespace ReferenceHost
{

/// Who else may hold a folder at the same time.
enum class LockKind
{
    Shared,   ///< Others that share it: for whoever reads. Without a lock file there is nobody to wait for.
    Exclusive ///< Nobody: for whoever changes something.
};

/// Holds a folder against other processes that lock it too, for as long as it lives.
class STYLEPROPERTIES_HOST_API FolderLock
{
public:
    /// Waits until nobody else holds the folder, which exists. The lock is a file in it, which stays.
    ///
    /// @throws DocumentError when the folder cannot be locked exclusively. What cannot be locked can still be
    ///         read: a shared lock is none then.
    FolderLock(const std::filesystem::path& folder, LockKind kind);

    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

private:
#if defined(_WIN32)
    void* file;
#else
    int file;
#endif
};

} // namespace ReferenceHost
