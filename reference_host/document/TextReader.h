#pragma once

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/ContentLimits.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/TextWalker.h"
#include "reference_host/document/Warnings.h"
#include "reference_host/document/XmlNames.h"

#include "host/style_model/Style.h"

#include <pugixml.hpp>

#include <cstddef>
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
class TextReader final : private ITextVisitor
{
public:
    /// Borrows everything.
    TextReader(const StyleCatalogue& styles, CascadeStyles& cascadeStyles, XmlNames& xmlNames,
               Warnings& reports, ContentLimits& contentLimits);

    /// Adds the paragraphs and runs of a shape's text to `object`. What the shape's own styles set is in
    /// `outer`; `shape` is the element, whose scope is in force.
    void Read(pugi::xml_node shape, DrawingObject& object, Styles::Style* parent, const StyleLevels& outer);

private:
    /// A paragraph, or a span in it, with the styles that apply to what is directly in it.
    struct Holder
    {
        pugi::xml_node element;
        StyleLevels levels;
    };

    void BeginParagraph(pugi::xml_node paragraph) override;
    void BeginSpan(pugi::xml_node span) override;
    void EndSpan() override;
    void BeginRun(pugi::xml_node holder) override;
    void Content(pugi::xml_node node) override;
    [[nodiscard]] std::size_t CascadeOf(const StyleLevels& levels);

    const StyleCatalogue& catalogue;
    CascadeStyles& cascades;
    XmlNames& names;
    Warnings& warnings;
    ContentLimits& limits;
    TextWalker walker;

    // Of the shape being read
    DrawingObject* target = nullptr;
    Styles::Style* namedStyle = nullptr;
    const StyleLevels* shapeLevels = nullptr;

    std::vector<Holder> holders;   ///< Of the paragraph being read, those that have ended included.
    std::vector<std::size_t> open; ///< Places in `holders` of those that have not ended.
};

} // namespace ReferenceHost
