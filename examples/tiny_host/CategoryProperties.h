#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"

#include <vector>

namespace TinyHost
{

/// Makes properties of a category known, besides those that are. None are at first.
STYLEPROPERTIES_HOST_API void RegisterProperties(const Styles::PropertyKey& category,
                                                 const std::vector<Styles::PropertyKey>& properties);

} // namespace TinyHost
