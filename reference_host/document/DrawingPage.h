#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <vector>

namespace ReferenceHost
{

class DrawingObject;

/// One page of a drawing; master pages are none.
struct STYLEPROPERTIES_HOST_API DrawingPage
{
    std::size_t number = 0; ///< From 1.
    OvxStringT name;        ///< Empty without one.
    std::vector<DrawingObject*>
        objects; ///< What lies directly on the page, in document order. Owned by the drawing.
};

} // namespace ReferenceHost
