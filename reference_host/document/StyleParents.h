#pragma once

#include "reference_host/document/PropertyMappings.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/Warnings.h"

#include <vector>

namespace ReferenceHost
{

/// Links every named style to its parent, and every automatic paragraph or text style to the named one that
/// it inherits from.
///
/// A parent that does not exist is dropped, and so is the link that closes a cycle: of the styles in one,
/// that of the last one reached from the earliest in the file. Each is reported with the name of the style
/// that lost its parent.
///
/// @returns the named styles of the graphic family, each behind its parent, and otherwise in the order of the
/// file.
std::vector<StyleRecord*> LinkParents(StyleCatalogue& catalogue, Warnings& warnings);

/// Finds the named styles of one category that substyles inherit from, for all graphic styles of the file.
/// One that does not exist is reported and dropped, and what stood for its values becomes the style's own.
/// After the named styles were made.
void LinkSubstyleParents(StyleCatalogue& catalogue, const PropertyMappings& table, Warnings& warnings);

/// Notes in every style what its substyles inherit from named ones now. Other programs may have changed what
/// stands there for them, which is no reason to write it again. After the named styles are complete.
void NoteInheritedValues(StyleCatalogue& catalogue, const PropertyMappings& table);

/// The value of a property that the nearest of a chain of styles sets; empty when none does, and for null.
[[nodiscard]] OvxUtils::Any FindInChain(const Styles::Style* style, const Styles::PropertyKey& key);

/// Gives the substyles of a whole style the parents that a style of the file says.
void SetSubstyleParents(Styles::Style& style, const StyleRecord& record);

/// The named style that a shape inherits from.
struct ShapeParent
{
    Styles::Style* style = nullptr; ///< Null for a shape without a parent.
    bool isMissing = false;         ///< The parent that the file names does not exist.
};

/// The parent of a shape with the graphic style `record`, which may be null: what an automatic style names, a
/// named whole style itself, and otherwise "standard" where the drawing has it.
[[nodiscard]] ShapeParent FindShapeParent(StyleCatalogue& catalogue, const StyleRecord* record);

} // namespace ReferenceHost
