#pragma once

#include "reference_host/document/PropertyCodecs.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/XmlEdits.h"

#include <pugixml.hpp>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Adds the attributes of this host's own that a wish is about.
void AddOwnAttributes(std::vector<AttributeEdit>& attributes, const StyleWish& wish);

/// Writes wishes into the elements of styles, or new elements for them.
class StyleElementEdits
{
public:
    /// Borrows everything. `declaredNames` are those that the styles may refer to.
    StyleElementEdits(const SavingContext& savingContext, const DeclaredNames& declaredNames);

    /// Changes what the properties of a style say; `name` is what warnings call the style. The style's own
    /// attributes are not looked at.
    void EditProperties(pugi::xml_node style, const PropertyValues& changes, const std::string& name,
                        XmlEdits& edits) const;

    /// The changes of those graphic properties that a paragraph style repeats in an extension of
    /// OpenDocument.
    ///
    /// Programs that write such an element beside the properties of the text believe it more than the graphic
    /// style of the shape.
    [[nodiscard]] PropertyValues FindRepeated(pugi::xml_node style, const PropertyValues& changes) const;

    /// Changes what a paragraph style repeats.
    void EditRepeated(pugi::xml_node style, const PropertyValues& changes, XmlEdits& edits) const;

    /// A new element of a style with these attributes and properties, for a place in `container`.
    [[nodiscard]] std::string WriteStyle(pugi::xml_node container, const std::string& elementName,
                                         const std::vector<AttributeEdit>& attributes,
                                         const PropertyValues& values, const std::string& name) const;

private:
    /// The attributes of each element of properties, by the order of PropertyElement.
    using ElementAttributes = std::array<std::vector<AttributeEdit>, 3>;

    /// The elements of properties that a style has of each kind.
    using PropertyNodes = std::array<std::vector<pugi::xml_node>, 3>;

    [[nodiscard]] ElementAttributes Expand(const PropertyNodes& nodes, const PropertyValues& changes,
                                           const std::string& name) const;
    void ExpandChange(const PropertyNodes& nodes, std::size_t firstRow, const OvxUtils::Any& value,
                      const std::string& name, ElementAttributes& attributes) const;
    void SplitShorthand(const PropertyNodes& nodes, const PropertyMapping& shorthand, std::size_t firstRow,
                        ElementAttributes& attributes) const;
    void ExpandColour(const PropertyMapping& row, const PropertyNodes& nodes, const OvxUtils::Any& value,
                      const std::string& name, ElementAttributes& attributes) const;
    void InsertElement(pugi::xml_node style, const PropertyNodes& nodes, std::size_t kind,
                       const std::string& xml, XmlEdits& edits) const;

    const SavingContext& context;
    const DeclaredNames& names;
};

} // namespace ReferenceHost
