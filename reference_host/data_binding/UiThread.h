#pragma once

#include "host/Export.h"

namespace ReferenceHost
{

/// Knows the user interface's thread: the first one that asks, until Reset.
class STYLEPROPERTIES_HOST_API UiThread
{
public:
    UiThread() = delete;

    /// Tells whether the calling thread is the user interface's. The first caller's thread becomes it.
    [[nodiscard]] static bool IsCurrent() noexcept;

    /// Asserts IsCurrent() in debug builds; does nothing in others.
    static void Check() noexcept;

    /// Forgets the thread: the next caller's becomes the user interface's. For programs that hand the user
    /// interface over to another thread, and for tests.
    static void Reset() noexcept;
};

} // namespace ReferenceHost
