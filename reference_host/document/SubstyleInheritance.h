#pragma once

#include "reference_host/document/NamedStyleEdits.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/StyleRecord.h"

#include "host/style_model/Style.h"

namespace ReferenceHost
{

/// Adds to a wish what the substyles of a whole style inherit from named styles of their category: who those
/// are, and for other programs the values that come from there, with a list that tells them from own ones.
///
/// @param record what the file says now; null without a style.
/// @param own    the style's own values; their changes are in the wish already.
void AddSubstyleInheritance(const SavingContext& context, const NamedStyleEdits& named,
                            const Styles::Style& style, const StyleRecord* record, const PropertyValues& own,
                            StyleWish& wish);

} // namespace ReferenceHost
