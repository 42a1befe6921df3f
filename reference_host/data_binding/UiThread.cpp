#include "reference_host/data_binding/UiThread.h"

#include <atomic>
#include <cassert>

namespace ReferenceHost
{

namespace
{

/// Its address names the thread for as long as the thread runs.
constinit thread_local char threadMark = 0;

/// The mark of the user interface's thread; null while nobody asked.
constinit std::atomic<const char*> owner = nullptr;

} // namespace

bool UiThread::IsCurrent() noexcept
{
    const char* expected = nullptr;
    return owner.compare_exchange_strong(expected, &threadMark) || expected == &threadMark;
}

void UiThread::Check() noexcept
{
    assert(IsCurrent() && "bound names and listeners belong to the user interface's thread");
}

void UiThread::Reset() noexcept
{
    owner = nullptr;
}

} // namespace ReferenceHost
