#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>

/// What this process holds at one moment.
struct MemoryUse
{
    std::size_t allocations; ///< That were not given back, of C++.
    std::size_t styles;      ///< Substyles included.
    std::size_t trees;       ///< Of XML.
    std::size_t modules;     ///< Shared libraries, the system's included.
    std::size_t files;       ///< Open descriptors.

    /// In main memory, in KiB. Nothing where the system does not tell, and under a sanitizer, which keeps
    /// what was given back.
    std::optional<std::size_t> residentKib;
};

/// What is held now.
[[nodiscard]] MemoryUse MeasureMemory();

std::ostream& operator<<(std::ostream& out, const MemoryUse& use);
