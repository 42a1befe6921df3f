#pragma once

#include "reference_host/document/picture/Geometry.h"

#include <optional>
#include <string_view>

namespace ReferenceHost
{

/// Reads the path data of SVG ("M 0 0 l 10 0 c ... z"). What follows something that cannot be read is left
/// out.
[[nodiscard]] Contour ParsePathData(std::string_view text);

/// What becomes of the end of a list of points.
enum class PointsEnd
{
    Open,  ///< A polyline.
    Closed ///< A polygon.
};

/// Reads a list of points ("0,0 10,0 10,5"); empty without two points.
[[nodiscard]] Contour ParsePoints(std::string_view text, PointsEnd end);

/// Reads a view box ("0 0 21600 21600"); none for anything but four numbers.
[[nodiscard]] std::optional<Box> ParseViewBox(std::string_view text);

/// Reads the transforms of OpenDocument, applied in the order in which they stand: "rotate (0.5) translate
/// (2cm 3cm)". Angles are radians, counterclockwise on the page. What cannot be read is passed over.
[[nodiscard]] Transform ParseTransform(std::string_view text);

} // namespace ReferenceHost
