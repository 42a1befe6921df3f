// Stands before the C library's heap functions, which give the same memory under names of their own.

#include "bench/harness/AllocationCount.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <malloc.h>

// The C library's own names, which no header declares.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* block, std::size_t size);
extern "C" void* __libc_memalign(std::size_t alignment, std::size_t size);
extern "C" void __libc_free(void* block);

// NOLINTEND(bugprone-reserved-identifier)

namespace
{

constinit Bench::AllocationCount counted;

void* Took(void* block, std::size_t asked) noexcept
{
    if (block == nullptr)
        return block;
    ++counted.allocations;
    counted.bytes += static_cast<std::int64_t>(asked);
    counted.live += static_cast<std::int64_t>(malloc_usable_size(block));
    counted.peak = std::max(counted.peak, counted.live);
    return block;
}

void GivesBack(void* block) noexcept
{
    if (block != nullptr)
        counted.live -= static_cast<std::int64_t>(malloc_usable_size(block));
}

} // namespace

extern "C" void* malloc(std::size_t size) noexcept
{
    return Took(__libc_malloc(size), size);
}

extern "C" void* calloc(std::size_t count, std::size_t size) noexcept
{
    return Took(__libc_calloc(count, size), count * size);
}

extern "C" void* realloc(void* block, std::size_t size) noexcept
{
    const auto before = block == nullptr ? 0 : static_cast<std::int64_t>(malloc_usable_size(block));
    void* const moved = __libc_realloc(block, size);
    if (moved != nullptr || size == 0)
        counted.live -= before;
    return Took(moved, size);
}

extern "C" void* memalign(std::size_t alignment, std::size_t size) noexcept
{
    return Took(__libc_memalign(alignment, size), size);
}

extern "C" void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return Took(__libc_memalign(alignment, size), size);
}

extern "C" int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept
{
    void* const taken = Took(__libc_memalign(alignment, size), size);
    if (taken == nullptr)
        return ENOMEM;
    *block = taken;
    return 0;
}

extern "C" void free(void* block) noexcept
{
    GivesBack(block);
    __libc_free(block);
}

namespace Bench
{

AllocationCount CountAllocations() noexcept
{
    return counted;
}

void RestartPeak() noexcept
{
    counted.peak = counted.live;
}

} // namespace Bench
