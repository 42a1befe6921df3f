#pragma once

#include <compare>
#include <cstdint>

/// Names one subscription, so that it can be ended. Never used twice by one broadcaster.
struct ListenerToken
{
    std::uint64_t id = 0; ///< 0 names none.

    /// Equal when they name the same subscription of one broadcaster.
    friend bool operator==(const ListenerToken&, const ListenerToken&) = default;
    /// By their numbers.
    friend auto operator<=>(const ListenerToken&, const ListenerToken&) = default;
};
