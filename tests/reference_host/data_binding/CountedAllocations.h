#pragma once

#include <cstddef>

/// How often this program has allocated since it began, on any thread.
[[nodiscard]] std::size_t CountAllocations() noexcept;
