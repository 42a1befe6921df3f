#pragma once

#include "reference_host/document/Drawing.h"

#include <string>
#include <vector>

/// Everything that can change in a drawing, one line each, in one order: the palette, the named styles in the
/// order of the sheet, the default style, and every object with its paragraphs and runs, whose styles are
/// made for it. A style is shown with its parents and all that it sets itself.
[[nodiscard]] std::vector<std::string> DumpOf(ReferenceHost::Drawing& drawing);
