#pragma once

#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/PropertyCodecs.h"
#include "reference_host/document/PropertyMappings.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/Warnings.h"
#include "reference_host/document/XmlNames.h"

#include "host/colour/CLR_COLORSPEC.h"

#include <pugixml.hpp>

#include <compare>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// The colours of a palette by their names in UTF-8.
using PaletteColours = std::unordered_map<std::string, CLR_COLORSPEC::Rgb>;

/// Tells whether definitions of a kind ("gradient", ...) are read, so that it is known which there are.
[[nodiscard]] bool IsDefinitionKind(std::string_view kind);

/// Reads the styles of a drawing, and the names that they refer to, as they stand in the file.
class StyleReader
{
public:
    /// Borrows everything.
    StyleReader(const PropertyMappings& properties, const PaletteColours& colours, StyleCatalogue& target,
                Warnings& reports);

    /// Reads the font faces, gradients, hatches, fill images, dashes and markers that a document declares, in
    /// addition to those read before. `root` is the document's root element, whose scope is in force.
    void ReadDeclarations(pugi::xml_node root, XmlNames& names);

    /// Reads the children of office:styles or office:automatic-styles, whose scope is in force.
    /// `text` is what the tree was made of.
    void ReadStyles(pugi::xml_node container, std::string_view text, XmlNames& names, StyleOrigin origin,
                    ProgressSpan progress);

    /// The default style of the graphic family; null when the styles read hold none.
    [[nodiscard]] const StyleRecord* GetDefault() const noexcept { return defaults ? &*defaults : nullptr; }

    /// The names that were declared up to now.
    [[nodiscard]] const DeclaredNames& GetDeclared() const noexcept { return declared; }

private:
    /// An own attribute that names the palette entry of a colour.
    struct ColourLink
    {
        PropertyElement element;
        std::string_view attribute; ///< The local name of the colour's attribute.
        std::string entry;          ///< The name of the palette entry.
    };

    /// What the elements of one style hold.
    struct Found
    {
        std::vector<StyleValue> values; ///< Their rows are those that were read.
        std::vector<ColourLink> links;
    };

    /// The order of what was found, first things first.
    struct Ordered
    {
        std::size_t firstRow;
        std::size_t row;
        bool isNoWindowColour;
        std::size_t place; ///< In Found::values.

        friend auto operator<=>(const Ordered&, const Ordered&) = default;
    };

    void ReadDeclaration(pugi::xml_node element, XmlNames& names);
    void ReadDefault(pugi::xml_node element, std::string_view text, XmlNames& names);
    void ReadStyle(pugi::xml_node element, std::string_view text, XmlNames& names, StyleOrigin origin);
    void ReadSubstyleParents(pugi::xml_node element, XmlNames& names, StyleRecord& record) const;
    void ReadProperties(pugi::xml_node styleElement, XmlNames& names, StyleRecord& record);
    void ReadAttribute(pugi::xml_attribute attribute, XmlName name, PropertyElement element,
                       const StyleRecord& record);
    [[nodiscard]] std::vector<StyleValue> TakeFirstRows();
    void LinkColour(const ColourLink& link, StyleRecord& record);

    const PropertyMappings& table;
    const PaletteColours& palette;
    StyleCatalogue& catalogue;
    Warnings& warnings;
    DeclaredNames declared;
    std::optional<StyleRecord> defaults;
    std::size_t textColourRow; ///< The row of the colour of text.

    // Of the style being read, and kept for their room
    Found found;
    std::vector<Ordered> order;
};

} // namespace ReferenceHost
