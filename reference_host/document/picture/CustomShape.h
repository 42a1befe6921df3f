#pragma once

#include "reference_host/document/picture/DrawingPicture.h"
#include "reference_host/document/picture/ShapeElement.h"

namespace ReferenceHost
{

/// Reads the parts and the text area of a custom shape into `target`, whose box is known.
///
/// @returns whether it did; nothing changes otherwise.
[[nodiscard]] bool ReadCustomShape(const ShapeElement& shape, ShapePicture& target);

} // namespace ReferenceHost
