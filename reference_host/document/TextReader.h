#pragma once

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/Warnings.h"
#include "reference_host/document/XmlNames.h"

#include "host/style_model/Style.h"

#include <pugixml.hpp>

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Styles of the file that apply to one thing, nearest first. Borrowed from the catalogue.
using StyleLevels = std::vector<const StyleRecord*>;

/// Adds a paragraph or text style, and the named ones that it inherits from, behind the levels there are. A
/// style that does not exist is reported and adds nothing; neither does an empty name.
void AddTextStyle(StyleLevels& levels, const StyleCatalogue& catalogue, StyleFamily family,
                  std::string_view name, Warnings& warnings);

/// Reads the text of one shape after another into text units.
class TextReader
{
public:
    /// Borrows everything.
    TextReader(const StyleCatalogue& styles, CascadeStyles& cascadeStyles, XmlNames& xmlNames,
               Warnings& reports);

    /// Adds the paragraphs and runs of a shape's text to `object`. What the shape's own styles set is in
    /// `outer`; `shape` is the element, whose scope is in force.
    void Read(pugi::xml_node shape, DrawingObject& object, Styles::Style* parent, const StyleLevels& outer);

private:
    /// Where blanks may still turn out to be text: between two pieces of text, but not at the end of a
    /// paragraph.
    struct PendingBlank
    {
        pugi::xml_node span;
        std::size_t cascade;
    };

    void ReadBlocks(pugi::xml_node container);
    void ReadParagraph(pugi::xml_node paragraph);
    void ReadInline(pugi::xml_node element, pugi::xml_node span, const StyleLevels& levels);
    void ReadInlineElement(pugi::xml_node element, pugi::xml_node span, const StyleLevels& levels);
    void ReadSpan(pugi::xml_node element, const StyleLevels& levels);
    void TakeText(std::string_view text, pugi::xml_node span, const StyleLevels& levels);
    void TakeContent(pugi::xml_node span, std::size_t cascade);
    [[nodiscard]] std::size_t CascadeOf(const StyleLevels& levels);

    const StyleCatalogue& catalogue;
    CascadeStyles& cascades;
    XmlNames& names;
    Warnings& warnings;

    // Of the shape being read
    DrawingObject* target = nullptr;
    Styles::Style* namedStyle = nullptr;
    const StyleLevels* shapeLevels = nullptr;

    // Of the paragraph being read
    std::optional<pugi::xml_node>
        lastSpan; ///< The innermost span of the last run; the paragraph without any.
    std::optional<PendingBlank> pendingBlank;
    bool endsWithBlank = true; ///< Blanks that follow a blank, or begin a paragraph, are no text.
};

} // namespace ReferenceHost
