#pragma once

#include "apps/workbench/Selector.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/DrawingObject.h"

#include <vector>

namespace Workbench
{

/// What a selector finds in a drawing.
struct Selection
{
    OvxStringT selector; ///< The selector that finds just this.
    SelectorScope scope = SelectorScope::Objects;
    OvxStringT styleName; ///< The named style for Sheet; else empty.
    std::vector<ReferenceHost::DrawingObject*>
        objects; ///< For Objects, in document order, no groups. Borrowed.
};

} // namespace Workbench
