#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"

#include <vector>

namespace ReferenceHost
{

/// The part of a style that styles of a category can be parents of: the style itself when it is of that
/// category, and the substyle of a whole style, made when it is missing. Null for any other, and for null.
[[nodiscard]] Styles::Style* PartOfCategory(Styles::Style* style, const Styles::PropertyKey& category);

/// Moves what the first of some styles sets into a new style, which becomes its parent, and looks the same
/// afterwards.
///
/// Of a whole style everything moves, of any other than whole new styles the substyle of the new style's
/// category. The other styles that set the same, with the same parents, get the new parent too. `newStyle` is
/// empty; without a style that has such a part it stays so. Null styles are passed over.
void ExtractInto(Styles::Style& newStyle, const std::vector<Styles::Style*>& styles);

} // namespace ReferenceHost
