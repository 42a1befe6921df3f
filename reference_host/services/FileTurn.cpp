#include "reference_host/services/FileTurn.h"

#if defined(_WIN32)

namespace ReferenceHost
{

FileTurn::FileTurn(const std::filesystem::path& /*file*/)
{
}

FileTurn::~FileTurn() = default;

} // namespace ReferenceHost

#else

#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace ReferenceHost
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kLongestWait{2};
constexpr std::chrono::milliseconds kPause{2};

/// Locks an open file.
///
/// @returns whether it did before `end`.
bool Lock(int descriptor, Clock::time_point end)
{
    while (flock(descriptor, LOCK_EX | LOCK_NB) != 0)
    {
        if (Clock::now() >= end)
            return false;
        std::this_thread::sleep_for(kPause);
    }
    return true;
}

/// Tells whether an open file still lies at a path: whoever had the turn before has put another there.
bool LiesAt(int descriptor, const std::filesystem::path& file)
{
    struct stat opened
    {
    };

    struct stat there
    {
    };

    return fstat(descriptor, &opened) == 0 && stat(file.c_str(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

} // namespace

FileTurn::FileTurn(const std::filesystem::path& file)
{
    const Clock::time_point end = Clock::now() + kLongestWait;
    for (;;)
    {
        descriptor = open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (descriptor < 0 || !Lock(descriptor, end) || LiesAt(descriptor, file) || Clock::now() >= end)
            return;
        close(descriptor);
    }
}

// Closing lets go of the lock.
FileTurn::~FileTurn()
{
    if (descriptor >= 0)
        close(descriptor);
}

} // namespace ReferenceHost

#endif
