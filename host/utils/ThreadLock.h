#pragma once

#include <mutex>

namespace OvxUtils
{

/// The lock that guards one piece of shared state; taken through WriteLock. Not recursive.
class ThreadLock
{
public:
    ThreadLock() = default;
    ThreadLock(const ThreadLock&) = delete;
    ThreadLock& operator=(const ThreadLock&) = delete;

private:
    friend class WriteLock;

    std::mutex mutex;
};

} // namespace OvxUtils
