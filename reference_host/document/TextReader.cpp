#include "reference_host/document/TextReader.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>
#include <span>
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

void AddTextStyle(StyleLevels& levels, const StyleCatalogue& catalogue, StyleFamily family,
                  std::string_view name, Warnings& warnings)
{
    if (name.empty())
        return;
    const StyleRecord* record = catalogue.Find(family, name);
    if (record == nullptr)
        warnings.Add("style \"" + ReadableName(name) + "\": text refers to it, but it does not exist");
    for (; record != nullptr; record = record->parent)
        levels.push_back(record);
}

TextReader::TextReader(const StyleCatalogue& styles, CascadeStyles& cascadeStyles, XmlNames& xmlNames,
                       Warnings& reports)
    : catalogue(styles), cascades(cascadeStyles), names(xmlNames), warnings(reports)
{
}

void TextReader::Read(pugi::xml_node shape, DrawingObject& object, Styles::Style* parent,
                      const StyleLevels& outer)
{
    target = &object;
    namedStyle = parent;
    shapeLevels = &outer;
    ReadBlocks(shape);
}

void TextReader::ReadBlocks(pugi::xml_node container)
{
    for (const pugi::xml_node element : container.children())
    {
        if (element.type() != pugi::node_element)
            continue;
        const XmlNames::Scope scope(names, element);
        const XmlName name = names.Of(element);
        if (IsOneOf(kParagraphs, name))
            ReadParagraph(element);
        else if (name.uri == Odf::kText || IsOneOf(kTextFrames, name))
            ReadBlocks(element);
    }
}

void TextReader::ReadParagraph(pugi::xml_node paragraph)
{
    lastSpan.reset();
    pendingBlank.reset();
    endsWithBlank = true;
    StyleLevels levels;
    AddTextStyle(levels, catalogue, StyleFamily::Paragraph,
                 names.Attribute(paragraph, {Odf::kText, "style-name"}), warnings);
    // Programs repeat the shape's text style on its paragraphs.
    const bool isRepeated = !levels.empty() && levels.size() <= shapeLevels->size() &&
                            std::ranges::equal(levels, std::span(shapeLevels->data(), levels.size()));
    if (isRepeated)
        levels.clear();
    levels.insert(levels.end(), shapeLevels->begin(), shapeLevels->end());

    const std::size_t cascade = CascadeOf(levels);
    target->GetParagraphs().emplace_back(TextUnit::Kind::Paragraph, *target, target->GetParagraphs().size(),
                                         cascades, cascade);
    ReadInline(paragraph, paragraph, levels);
    if (!lastSpan)
        TakeContent(paragraph, CascadeOf(levels));
}

void TextReader::ReadInline(pugi::xml_node element, pugi::xml_node span, const StyleLevels& levels)
{
    for (const pugi::xml_node child : element.children())
    {
        if (child.type() == pugi::node_element)
            ReadInlineElement(child, span, levels);
        else if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
            TakeText(child.value(), span, levels);
    }
}

void TextReader::ReadInlineElement(pugi::xml_node element, pugi::xml_node span, const StyleLevels& levels)
{
    const XmlNames::Scope scope(names, element);
    const XmlName name = names.Of(element);
    if (IsOneOf(kSpans, name))
        return ReadSpan(element, levels);
    if (IsOneOf(kTransparent, name))
        return ReadInline(element, span, levels);
    // Shapes, annotations and events within text are no text; fields, tabs and breaks are.
    if (name.uri == Odf::kDraw || name.uri == Odf::kDr3d || name.uri == Odf::kOffice ||
        IsOneOf(kNoText, name))
        return;
    TakeContent(span, CascadeOf(levels));
    endsWithBlank = false;
}

void TextReader::ReadSpan(pugi::xml_node element, const StyleLevels& levels)
{
    StyleLevels inner;
    AddTextStyle(inner, catalogue, StyleFamily::Text, names.Attribute(element, {Odf::kText, "style-name"}),
                 warnings);
    inner.insert(inner.end(), levels.begin(), levels.end());
    ReadInline(element, element, inner);
}

void TextReader::TakeText(std::string_view text, pugi::xml_node span, const StyleLevels& levels)
{
    if (text.empty())
        return;
    const bool isBlank = std::ranges::all_of(text, IsXmlBlank);
    if (!isBlank)
        TakeContent(span, CascadeOf(levels));
    else if (!endsWithBlank)
        pendingBlank = PendingBlank{span, CascadeOf(levels)};
    endsWithBlank = IsXmlBlank(text.back());
}

void TextReader::TakeContent(pugi::xml_node span, std::size_t cascade)
{
    if (const std::optional<PendingBlank> blank = std::exchange(pendingBlank, std::nullopt))
        TakeContent(blank->span, blank->cascade);
    if (lastSpan == span)
        return;
    target->GetRuns().emplace_back(TextUnit::Kind::Run, *target, target->GetParagraphs().size() - 1, cascades,
                                   cascade);
    lastSpan = span;
}

std::size_t TextReader::CascadeOf(const StyleLevels& levels)
{
    return cascades.Intern(OwnValues::Scope::Text, namedStyle, levels);
}

} // namespace ReferenceHost
