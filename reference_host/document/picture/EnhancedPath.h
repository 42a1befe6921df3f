#pragma once

#include "reference_host/document/picture/Geometry.h"
#include "reference_host/document/picture/ShapeFormulas.h"

#include <optional>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Reads the path of a custom shape, in the units of its view box; none where it cannot be read or evaluated
/// to its end.
[[nodiscard]] std::optional<std::vector<ShapePart>> ReadEnhancedPath(std::string_view path,
                                                                     ShapeFormulas& formulas);

/// Reads the first text area of a custom shape ("0 0 ?f1 ?f2": left, top, right, bottom); none where it
/// cannot be evaluated.
[[nodiscard]] std::optional<Box> ReadTextArea(std::string_view areas, ShapeFormulas& formulas);

} // namespace ReferenceHost
