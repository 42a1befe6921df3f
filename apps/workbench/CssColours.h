#pragma once

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/OvxStringViewT.h"

#include <optional>

namespace Workbench
{

/// The colour that one of the 148 names of CSS stands for, capital letters or small; none for another text.
[[nodiscard]] std::optional<CLR_COLORSPEC::Rgb> FindCssColour(OvxStringViewT name);

} // namespace Workbench
