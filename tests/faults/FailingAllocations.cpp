#include "tests/faults/FailingAllocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

using FailingAllocations::Failing;

/// What runs of a Countdown; on one thread, but read by allocations of any.
struct State
{
    bool isArmed = false;
    bool hasFailed = false;
    int pauses = 0;
    std::size_t succeeding = 0;
    Failing failing = Failing::One;
};

constinit thread_local State state;
constinit std::atomic<std::size_t> live = 0;

/// Counts an allocation that the Countdown sees, and tells whether it is to fail.
bool Fails() noexcept
{
    if (!state.isArmed || state.pauses != 0)
        return false;
    if (state.hasFailed)
        return state.failing == Failing::AllFrom;
    if (state.succeeding != 0)
    {
        --state.succeeding;
        return false;
    }
    state.hasFailed = true;
    return true;
}

void* Allocate(std::size_t size)
{
    void* memory = Fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    ++live;
    return memory;
}

void* AllocateAligned(std::size_t size, std::size_t alignment)
{
    void* memory =
        Fails() ? nullptr : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
    if (memory == nullptr)
        throw std::bad_alloc();
    ++live;
    return memory;
}

void Free(void* memory) noexcept
{
    if (memory == nullptr)
        return;
    --live;
    std::free(memory);
}

} // namespace

namespace FailingAllocations
{

Countdown::Countdown(std::size_t succeeding, Failing failing) noexcept
{
    state = {true, false, 0, succeeding, failing};
}

Countdown::~Countdown()
{
    state.isArmed = false;
}

bool Countdown::HasFailed() noexcept
{
    return state.hasFailed;
}

Pause::Pause() noexcept
{
    ++state.pauses;
}

Pause::~Pause()
{
    --state.pauses;
}

std::size_t CountLive() noexcept
{
    return live;
}

} // namespace FailingAllocations

// All forms: those of the standard library come to the first two, those of a sanitizer do not.

void* operator new(std::size_t size)
{
    return Allocate(size);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return AllocateAligned(size, static_cast<std::size_t>(alignment));
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    try
    {
        return Allocate(size);
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

void* operator new[](std::size_t size)
{
    return Allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return operator new(size, tag);
}

void operator delete(void* memory) noexcept
{
    Free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    Free(memory);
}

void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept
{
    Free(memory);
}

void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    Free(memory);
}

void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    Free(memory);
}

void operator delete[](void* memory) noexcept
{
    Free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    Free(memory);
}

void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept
{
    Free(memory);
}
