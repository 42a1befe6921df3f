#pragma once

#include "host/style_model/PropertyPath.h"
#include "host/utils/OvxStringT.h"

/// Reads an active identifier: paths separated by ",", the keys of a path by ".".
///
/// The paths keep the order of the text. Empty pieces and keys are left out and nothing is trimmed, so that
/// an empty text gives no paths. With `dropWildcard` true, a last key "*" of a path is left out.
[[nodiscard]] Styles::PropertyPaths ParseActivePaths(const OvxStringT& text, bool dropWildcard);
