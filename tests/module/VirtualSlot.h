#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// The place of a virtual operation in the table of the class that `operation` names, counted from 0.
///
/// Destructors take two places where the table follows the Itanium C++ ABI, the only one this reads.
template <class Operation>
[[nodiscard]] std::size_t VirtualSlot(Operation operation)
{
    struct Representation
    {
        std::uintptr_t pointer;
        std::uintptr_t adjustment;
    };

    static_assert(sizeof(Operation) == sizeof(Representation), "not a pointer to a member function");
    Representation representation{};
    std::memcpy(&representation, &operation, sizeof representation);

    // A virtual operation is its offset in the table. ARM marks it in the adjustment, others by an odd
    // pointer.
#if defined(__arm__) || defined(__aarch64__)
    const std::uintptr_t offset = representation.pointer;
#else
    const std::uintptr_t offset = representation.pointer - 1;
#endif
    return offset / sizeof(void*);
}
