#pragma once

#include <cstddef>

/// Makes allocations of this program fail, by the global operators that it replaces; modules that are loaded
/// allocate by them too. One thread at a time.
namespace FailingAllocations
{

/// Which allocations fail, of those that a Countdown sees.
enum class Failing
{
    One,    ///< The one that it names; memory is there again right behind it.
    AllFrom ///< The one that it names and all behind it: also what is tidied up has no memory to do it with.
};

/// Lets a number of allocations succeed, and the next one fail, for as long as it lives: one at a time.
class [[nodiscard]] Countdown
{
public:
    Countdown(std::size_t succeeding, Failing failing) noexcept;
    Countdown(const Countdown&) = delete;
    Countdown& operator=(const Countdown&) = delete;
    ~Countdown();

    /// Tells whether any allocation has failed so far.
    [[nodiscard]] static bool HasFailed() noexcept;
};

/// Takes what the test itself allocates out of a Countdown, for as long as it lives; they nest.
class [[nodiscard]] Pause
{
public:
    Pause() noexcept;
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
    ~Pause();
};

/// How many allocations have not been given back yet.
[[nodiscard]] std::size_t CountLive() noexcept;

} // namespace FailingAllocations
