#pragma once

#include "host/style_model/Style.h"

#include <span>

namespace ReferenceHost
{

/// Tells whether a style takes values, at any distance, from one of `styles`, which are sorted by address: as
/// a parent, or, for a substyle, through the parents of its owners. Default styles are no parents.
[[nodiscard]] bool InheritsFromAny(const Styles::Style& style, std::span<Styles::Style* const> styles);

/// Tells whether `parent` as the parent of `style` would make a style inherit from itself: `parent` is the
/// style, lies within it, or inherits from it or from something within it; or one of its substyles inherits
/// from the substyle of the same name in `style`.
[[nodiscard]] bool WouldCloseCycle(const Styles::Style& style, const Styles::Style& parent);

} // namespace ReferenceHost
