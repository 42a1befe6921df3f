#pragma once

#include "host/utils/ThreadLock.h"

#include <mutex>

namespace OvxUtils
{

/// Holds a ThreadLock for changing what it guards, until the end of the scope.
class [[nodiscard]] WriteLock
{
public:
    /// Waits until nobody else holds `lock`, and takes it.
    explicit WriteLock(ThreadLock& lock) : held(lock.mutex) {}

private:
    std::lock_guard<std::mutex> held;
};

} // namespace OvxUtils
