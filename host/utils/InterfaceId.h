#pragma once

#include <array>
#include <cstdint>

/// Names an interface in a query: 16 bytes, compared as they lie in memory.
struct InterfaceId
{
    std::array<std::uint8_t, 16> bytes{}; ///< The identifier, byte by byte.

    /// Equal in every byte.
    friend bool operator==(const InterfaceId&, const InterfaceId&) = default;
};
