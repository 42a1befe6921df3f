#pragma once

#include "host/Export.h"

#include <filesystem>

namespace ReferenceHost
{

/// Holds a folder against other processes that lock it too, for as long as it lives.
class STYLEPROPERTIES_HOST_API FolderLock
{
public:
    /// Waits until nobody else holds the folder, which exists. The lock is a file in it, which stays.
    ///
    /// @throws DocumentError when the folder cannot be locked.
    explicit FolderLock(const std::filesystem::path& folder);

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
