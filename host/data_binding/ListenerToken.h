#pragma once

#include <compare>
#include <cstdint>

/// Names one subscription, so that it can be ended. Never used twice by one broadcaster.
struct ListenerToken
{
    std::uint64_t id = 0; ///< 0 names none.

    friend bool operator==(const ListenerToken&, const ListenerToken&) = default;
    friend auto operator<=>(const ListenerToken&, const ListenerToken&) = default;
};
