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

FolderLock::FolderLock(const std::filesystem::path& folder, LockKind kind)
    : file(CreateFileW((folder / kLockFile).c_str(),
                       kind == LockKind::Shared ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE,
                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                       kind == LockKind::Shared ? OPEN_EXISTING : OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN,
                       nullptr))
{
    OVERLAPPED whole{};
    const DWORD flags = kind == LockKind::Shared ? 0 : LOCKFILE_EXCLUSIVE_LOCK;
    if (file != INVALID_HANDLE_VALUE && LockFileEx(file, flags, 0, 1, 0, &whole))
        return;
    const int code = static_cast<int>(GetLastError());
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    file = INVALID_HANDLE_VALUE;
    if (kind == LockKind::Exclusive)
        FailToLock(folder / kLockFile, code);
}

FolderLock::~FolderLock()
{
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
}

#else

FolderLock::FolderLock(const std::filesystem::path& folder, LockKind kind)
    : file(open((folder / kLockFile).c_str(),
                kind == LockKind::Shared ? O_RDONLY | O_CLOEXEC : O_RDWR | O_CREAT | O_CLOEXEC, 0666))
{
    int code = file < 0 ? errno : 0;
    while (code == 0 && flock(file, kind == LockKind::Shared ? LOCK_SH : LOCK_EX) != 0)
        code = errno == EINTR ? 0 : errno;
    if (code == 0 || kind == LockKind::Shared)
        return;
    if (file >= 0)
        close(file);
    FailToLock(folder / kLockFile, code);
}

// Closing lets go of the lock.
FolderLock::~FolderLock()
{
    if (file >= 0)
        close(file);
}

#endif

} // namespace ReferenceHost
