#pragma once

#include "fuzz/Choices.h"
#include "reference_host/document/Drawing.h"

namespace Fuzz
{

/// Changes a drawing as choices decide until none are left: values of all kinds of styles, parents, new and
/// other names, the palette, undo and redo.
void EditAsChosen(ReferenceHost::Drawing& drawing, Choices& choices);

} // namespace Fuzz
