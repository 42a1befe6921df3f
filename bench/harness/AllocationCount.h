#pragma once

#include <cstdint>

namespace Bench
{

/// What this process took from the heap, by whatever route: the C++ operators and the C functions, of every
/// library in it. Counts from the start of the process; one thread.
struct AllocationCount
{
    std::int64_t allocations = 0; ///< How often memory was asked for.
    std::int64_t bytes = 0;       ///< How much was asked for: it does not depend on the allocator's state.
    std::int64_t live = 0;        ///< What was given and not given back, the allocator's rounding included.
    std::int64_t peak = 0;        ///< The most that was live at once since the last RestartPeak().
};

/// The counts up to now.
[[nodiscard]] AllocationCount CountAllocations() noexcept;

/// Makes what is live now the peak.
void RestartPeak() noexcept;

} // namespace Bench
