#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"

namespace ReferenceHost
{

/// Makes a style of `category`, or the substyle of that category of a whole style, set what `preset` sets,
/// and none of the category's other properties, which it inherits from then on.
///
/// @param preset a style of that category.
/// @returns whether `style` has such a part; null has none, and neither has a style that may not be edited.
bool ApplyPreset(Styles::Style* style, const Styles::PropertyKey& category, const Styles::Style& preset);

} // namespace ReferenceHost
