#pragma once

#include "reference_host/document/PropertyCodecs.h"
#include "reference_host/document/PropertyMapping.h"

#include "host/utils/Any.h"

#include <optional>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// Writes a value as the text of an attribute: the inverse of ParseProperty().
///
/// @param previous the text that stands there now, whose unit or spelling is kept where it can be; empty
/// without one.
/// @returns a text that ParseProperty() reads as that very value, a colour by its look; none when there is no
///          such text, as for a negative opacity or a font that no face declares where only faces count.
[[nodiscard]] std::optional<std::string> FormatProperty(const PropertyMapping& mapping,
                                                        const OvxUtils::Any& value, std::string_view previous,
                                                        const DeclaredNames& names);

/// A colour as "#rrggbb".
[[nodiscard]] std::string FormatColour(CLR_COLORSPEC::Rgb colour);

} // namespace ReferenceHost
