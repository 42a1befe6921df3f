#include "reference_host/services/FolderLock.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/services/NativePaths.h"

#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace ReferenceHost
{

namespace
{

constexpr const char* kLockFile = ".lock";

[[noreturn]] void FailToLock(const std::filesystem::path& lock, int code)
{
    throw DocumentError("the folder cannot be locked: " + std::system_category().message(code),
                        PathToUtf8(lock), "a folder that may be written to");
}

} // namespace

#if defined(_WIN32)

FolderLock::FolderLock(const std::filesystem::path& folder)
    : file(CreateFileW((folder / kLockFile).c_str(), GENERIC_READ | GENERIC_WRITE,
                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN,
                       nullptr))
{
    OVERLAPPED whole{};
    if (file != INVALID_HANDLE_VALUE && LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &whole))
        return;
    const int code = static_cast<int>(GetLastError());
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    FailToLock(folder / kLockFile, code);
}

FolderLock::~FolderLock()
{
    CloseHandle(file);
}

#else

FolderLock::FolderLock(const std::filesystem::path& folder)
    : file(open((folder / kLockFile).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666))
{
    if (file < 0)
        FailToLock(folder / kLockFile, errno);
    while (flock(file, LOCK_EX) != 0)
    {
        if (errno == EINTR)
            continue;
        const int code = errno;
        close(file);
        FailToLock(folder / kLockFile, code);
    }
}

// Closing lets go of the lock.
FolderLock::~FolderLock()
{
    close(file);
}

#endif

} // namespace ReferenceHost
