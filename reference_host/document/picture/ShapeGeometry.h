#pragma once

#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <pugixml.hpp>

namespace ReferenceHost
{

/// Reads where a shape lies and what its outline is into `target`: everything but picture, text and details.
///
/// `shape` is the element, whose scope is in force. A custom shape that cannot be evaluated, and every kind
/// without an outline of its own, gets the outline of its box.
void ReadGeometry(pugi::xml_node shape, XmlNames& names, ShapePicture& target);

} // namespace ReferenceHost
