#pragma once

#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/Warnings.h"

#include <vector>

namespace ReferenceHost
{

/// Links every named style to its parent, and every automatic paragraph or text style to the named one that
/// it inherits from.
///
/// A parent that does not exist is dropped, and so is the link that closes a cycle: of the styles in one,
/// that of the last one reached from the earliest in the file. Each is reported with the name of the style
/// that lost its parent.
///
/// @returns the named styles of the graphic family, each behind its parent, and otherwise in the order of the
/// file.
std::vector<StyleRecord*> LinkParents(StyleCatalogue& catalogue, Warnings& warnings);

} // namespace ReferenceHost
