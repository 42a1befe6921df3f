#include "reference_host/document/TextReader.h"

#include "reference_host/document/OdfNamespaces.h"

#include <algorithm>
#include <span>
#include <utility>

namespace ReferenceHost
{

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
                       Warnings& reports, ContentLimits& contentLimits)
    : catalogue(styles),
      cascades(cascadeStyles),
      names(xmlNames),
      warnings(reports),
      limits(contentLimits),
      walker(xmlNames, *this)
{
}

void TextReader::Read(pugi::xml_node shape, DrawingObject& object, Styles::Style* parent,
                      const StyleLevels& outer)
{
    target = &object;
    namedStyle = parent;
    shapeLevels = &outer;
    walker.Walk(shape);
}

void TextReader::BeginParagraph(pugi::xml_node paragraph)
{
    limits.CountTextUnit();
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
    holders.clear();
    open.assign(1, 0);
    holders.push_back({paragraph, std::move(levels)});
}

void TextReader::BeginSpan(pugi::xml_node span)
{
    StyleLevels levels;
    AddTextStyle(levels, catalogue, StyleFamily::Text, names.Attribute(span, {Odf::kText, "style-name"}),
                 warnings);
    const StyleLevels& outer = holders[open.back()].levels;
    levels.insert(levels.end(), outer.begin(), outer.end());
    open.push_back(holders.size());
    holders.push_back({span, std::move(levels)});
}

void TextReader::EndSpan()
{
    open.pop_back();
}

void TextReader::BeginRun(pugi::xml_node holder)
{
    limits.CountTextUnit();
    // As a rule it is open still; a blank alone may be told to be a run after its span.
    const auto isIt = [&](const Holder& each) { return each.element == holder; };
    const auto opened =
        std::find_if(open.rbegin(), open.rend(), [&](std::size_t place) { return isIt(holders[place]); });
    const Holder& found =
        opened != open.rend() ? holders[*opened] : *std::find_if(holders.rbegin(), holders.rend(), isIt);
    target->GetRuns().emplace_back(TextUnit::Kind::Run, *target, target->GetParagraphs().size() - 1, cascades,
                                   CascadeOf(found.levels));
}

void TextReader::Content(pugi::xml_node /*node*/)
{
    // The style of a unit is all that is read; what it says does not matter.
}

std::size_t TextReader::CascadeOf(const StyleLevels& levels)
{
    return cascades.Intern(OwnValues::Scope::Text, namedStyle, levels);
}

} // namespace ReferenceHost
