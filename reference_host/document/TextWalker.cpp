#include "reference_host/document/TextWalker.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr std::array<XmlName, 2> kParagraphs{{{Odf::kText, "p"}, {Odf::kText, "h"}}};

/// What holds paragraphs without being text itself. Other elements of the text namespace that stand where
/// paragraphs do (lists, sections, indexes) do so too.
constexpr std::array<XmlName, 2> kTextFrames{{{Odf::kDraw, "text-box"}, {Odf::kDraw, "image"}}};

/// Parts of a paragraph that people see as spans.
constexpr std::array<XmlName, 2> kSpans{{{Odf::kText, "span"}, {Odf::kText, "a"}}};

/// Parts of a paragraph that stand for what is in them.
constexpr std::array<XmlName, 4> kTransparent{
    {{Odf::kText, "ruby"}, {Odf::kText, "ruby-base"}, {Odf::kText, "meta"}, {Odf::kText, "meta-field"}}};

/// Parts of a paragraph that are no text of it.
constexpr std::array<XmlName, 15> kNoText{{{Odf::kText, "ruby-text"},
                                           {Odf::kText, "note"},
                                           {Odf::kText, "soft-page-break"},
                                           {Odf::kText, "bookmark"},
                                           {Odf::kText, "bookmark-start"},
                                           {Odf::kText, "bookmark-end"},
                                           {Odf::kText, "reference-mark"},
                                           {Odf::kText, "reference-mark-start"},
                                           {Odf::kText, "reference-mark-end"},
                                           {Odf::kText, "change"},
                                           {Odf::kText, "change-start"},
                                           {Odf::kText, "change-end"},
                                           {Odf::kText, "toc-mark"},
                                           {Odf::kText, "toc-mark-start"},
                                           {Odf::kText, "toc-mark-end"}}};

template <std::size_t count>
bool IsOneOf(const std::array<XmlName, count>& names, const XmlName& name)
{
    return std::ranges::find(names, name) != names.end();
}

} // namespace

TextWalker::TextWalker(XmlNames& xmlNames, ITextVisitor& textVisitor) : names(xmlNames), visitor(textVisitor)
{
}

void TextWalker::Walk(pugi::xml_node shape)
{
    for (const pugi::xml_node element : shape.children())
    {
        if (element.type() != pugi::node_element)
            continue;
        const XmlNames::Scope scope(names, element);
        const XmlName name = names.Of(element);
        if (IsOneOf(kParagraphs, name))
            WalkParagraph(element);
        else if (name.uri == Odf::kText || IsOneOf(kTextFrames, name))
            Walk(element);
    }
}

void TextWalker::WalkParagraph(pugi::xml_node paragraph)
{
    lastHolder.reset();
    pendingBlank.reset();
    endsWithBlank = true;
    visitor.BeginParagraph(paragraph);
    WalkInline(paragraph, paragraph);
    if (!lastHolder)
        visitor.BeginRun(paragraph);
}

void TextWalker::WalkInline(pugi::xml_node element, pugi::xml_node holder)
{
    for (const pugi::xml_node child : element.children())
    {
        if (child.type() == pugi::node_element)
            WalkInlineElement(child, holder);
        else if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
            TakeText(child, holder);
    }
}

void TextWalker::WalkInlineElement(pugi::xml_node element, pugi::xml_node holder)
{
    const XmlNames::Scope scope(names, element);
    const XmlName name = names.Of(element);
    if (IsOneOf(kSpans, name))
    {
        visitor.BeginSpan(element);
        WalkInline(element, element);
        return visitor.EndSpan();
    }
    if (IsOneOf(kTransparent, name))
        return WalkInline(element, holder);
    // Shapes, annotations and events within text are no text; fields, tabs and breaks are.
    if (name.uri == Odf::kDraw || name.uri == Odf::kDr3d || name.uri == Odf::kOffice ||
        IsOneOf(kNoText, name))
        return;
    TakeContent(holder, element);
    endsWithBlank = false;
}

void TextWalker::TakeText(pugi::xml_node text, pugi::xml_node holder)
{
    const std::string_view characters = text.value();
    if (characters.empty())
        return;
    const bool isBlank = std::ranges::all_of(characters, IsXmlBlank);
    if (!isBlank)
        TakeContent(holder, text);
    else if (!endsWithBlank)
        pendingBlank = PendingBlank{holder, text};
    endsWithBlank = IsXmlBlank(characters.back());
}

void TextWalker::TakeContent(pugi::xml_node holder, pugi::xml_node node)
{
    if (const std::optional<PendingBlank> blank = std::exchange(pendingBlank, std::nullopt))
        TakeContent(blank->holder, blank->text);
    if (lastHolder != holder)
    {
        visitor.BeginRun(holder);
        lastHolder = holder;
    }
    visitor.Content(node);
}

} // namespace ReferenceHost
