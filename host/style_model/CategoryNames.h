#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"

namespace Styles
{

/// The category of whole styles; its text is "style". This and the following keys may be used by the static
/// initialisers of any module.
extern STYLEPROPERTIES_HOST_API const PropertyKey StyleCategoryName;

/// The category of fill substyles; its text is "fill".
extern STYLEPROPERTIES_HOST_API const PropertyKey FillStyleCategoryName;

/// The category of outline substyles; its text is "outline".
extern STYLEPROPERTIES_HOST_API const PropertyKey OutlineStyleCategoryName;

/// The category of paragraph substyles; its text is "paragraph".
[[nodiscard]] STYLEPROPERTIES_HOST_API PropertyKey GetParagraphStyleCategoryName();

/// The category of character substyles; its text is "character".
[[nodiscard]] STYLEPROPERTIES_HOST_API PropertyKey GetCharacterStyleCategoryName();

} // namespace Styles
