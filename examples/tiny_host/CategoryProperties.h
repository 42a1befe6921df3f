#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/OvxStringT.h"

#include <vector>

namespace TinyHost
{

/// Makes a category known besides the five that panels come with. Its name for people is the text of
/// `textKey`, which is the key itself without one. One that is known already stays as it is.
STYLEPROPERTIES_HOST_API void RegisterCategory(const Styles::PropertyKey& category,
                                               const OvxStringT& textKey);

/// Makes properties of a category known, besides those that are. None are at first.
STYLEPROPERTIES_HOST_API void RegisterProperties(const Styles::PropertyKey& category,
                                                 const std::vector<Styles::PropertyKey>& properties);

} // namespace TinyHost
