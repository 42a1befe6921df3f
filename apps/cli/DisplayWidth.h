#pragma once

#include "host/utils/OvxStringViewT.h"

#include <cstddef>

namespace Cli
{

/// How many columns a text takes on a terminal.
///
/// Combining marks, joiners and control characters take none, East Asian wide characters and pictographs two,
/// all others one. The locale plays no part.
[[nodiscard]] std::size_t DisplayWidth(OvxStringViewT text);

} // namespace Cli
