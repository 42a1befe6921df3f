#pragma once

#include "host/Export.h"

#include <cstddef>

namespace ReferenceHost
{

/// How many XML trees are alive: each lives as long as a handle into it. For tests that look for leaks.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::size_t CountLiveXmlTrees() noexcept;

} // namespace ReferenceHost
