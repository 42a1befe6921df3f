#include "reference_host/document/TextLayout.h"

#include "reference_host/document/XmlNames.h"

#include <utility>

namespace ReferenceHost
{

namespace
{

/// Puts the declarations of an element and of all around it in force, outermost first, and calls `visit`.
void WithScopes(XmlNames& names, pugi::xml_node element, const std::function<void()>& visit)
{
    if (element.type() != pugi::node_element)
        return visit();
    WithScopes(names, element.parent(),
               [&]
               {
                   const XmlNames::Scope scope(names, element);
                   visit();
               });
}

} // namespace

TextLayout::TextLayout(pugi::xml_node shape, TextLevels& textLevels, Refer referTo)
    : levels(textLevels), refer(std::move(referTo)), shapeLevel(textLevels.GetLevels().size() - 1)
{
    XmlNames names;
    TextWalker walker(names, *this);
    WithScopes(names, shape, [&] { walker.Walk(shape); });
}

void TextLayout::BeginParagraph(pugi::xml_node paragraph)
{
    const StyleReference reference = refer(paragraph, StyleFamily::Paragraph);
    const std::size_t level = levels.AddLevel(reference, shapeLevel);
    const TextLevel& outer = levels.GetLevels()[shapeLevel];
    levels.GetLevels()[level].isRepeated =
        reference.record != nullptr && shapeLevel != 0 && outer.reference.record == reference.record;
    open.assign(1, level);
    levelsByHolder[paragraph.hash_value()] = level;
    paragraphs.push_back({level, {}, {}});
}

void TextLayout::BeginSpan(pugi::xml_node span)
{
    const std::size_t level = levels.AddLevel(refer(span, StyleFamily::Text), open.back());
    open.push_back(level);
    levelsByHolder[span.hash_value()] = level;
}

void TextLayout::EndSpan()
{
    open.pop_back();
}

void TextLayout::BeginRun(pugi::xml_node holder)
{
    runs.push_back({levelsByHolder.at(holder.hash_value()), {}, {}});
    contents.emplace_back();
}

void TextLayout::Content(pugi::xml_node node)
{
    contents.back().push_back(node);
}

} // namespace ReferenceHost
