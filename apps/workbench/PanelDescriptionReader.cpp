#include "apps/workbench/PanelDescriptionReader.h"

#include "apps/workbench/DescriptionElement.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/document/XmlTree.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <utility>

namespace Workbench
{
namespace
{

using ReferenceHost::PropertyCodec;
using ReferenceHost::PropertyMapping;

constexpr DescriptionWord<TargetKind> kTargetKinds[] = {
    {"objects", TargetKind::Objects}, {"paragraphs", TargetKind::Paragraphs}, {"runs", TargetKind::Runs}};

constexpr DescriptionWord<ControlKind> kControls[] = {{"colour", ControlKind::Colour},
                                                      {"number", ControlKind::Number},
                                                      {"choice", ControlKind::Choice},
                                                      {"switch", ControlKind::Switch},
                                                      {"text", ControlKind::Text}};

constexpr DescriptionWord<ValueKind> kColourKinds[] = {{"colour", ValueKind::Colour}};
constexpr DescriptionWord<ValueKind> kNumberKinds[] = {
    {"length", ValueKind::Length}, {"font-size", ValueKind::FontSize}, {"percent", ValueKind::Percent}};
constexpr DescriptionWord<ValueKind> kChoiceKinds[] = {{"choice", ValueKind::Choice}};
constexpr DescriptionWord<ValueKind> kTextKinds[] = {{"text", ValueKind::Text}};

constexpr DescriptionWord<NumberUnit> kLengthUnits[] = {{"mm", NumberUnit::Millimetre},
                                                        {"cm", NumberUnit::Centimetre}};
constexpr DescriptionWord<NumberUnit> kFontSizeUnits[] = {{"pt", NumberUnit::Point}};
constexpr DescriptionWord<NumberUnit> kPercentUnits[] = {{"%", NumberUnit::Percent}};

/// The namespaces that a description may name, by the prefixes that stand for them there.
constexpr DescriptionWord<std::string_view> kNamespaces[] = {
    {"draw", "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"},
    {"dr3d", "urn:oasis:names:tc:opendocument:xmlns:dr3d:1.0"},
    {"fo", "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"},
    {"style", "urn:oasis:names:tc:opendocument:xmlns:style:1.0"},
    {"svg", "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"},
    {"table", "urn:oasis:names:tc:opendocument:xmlns:table:1.0"},
    {"text", "urn:oasis:names:tc:opendocument:xmlns:text:1.0"}};

/// The kinds of value that a control is for.
std::span<const DescriptionWord<ValueKind>> KindsFor(ControlKind control)
{
    switch (control)
    {
    case ControlKind::Colour:
        return kColourKinds;
    case ControlKind::Number:
        return kNumberKinds;
    case ControlKind::Choice:
    case ControlKind::Switch:
        return kChoiceKinds;
    case ControlKind::Text:
        break;
    }
    return kTextKinds;
}

std::span<const DescriptionWord<NumberUnit>> UnitsFor(ValueKind kind)
{
    if (kind == ValueKind::Length)
        return kLengthUnits;
    if (kind == ValueKind::FontSize)
        return kFontSizeUnits;
    return kPercentUnits;
}

std::optional<NumberRange> ReadRange(const DescriptionElement& row, ControlKind control, ValueKind kind)
{
    if (control != ControlKind::Number)
    {
        for (const char* attribute : {"unit", "minimum", "maximum"})
        {
            if (row.Has(attribute))
                row.Fail("attribute \"" + std::string(attribute) + "\" stands here",
                         "it with the control \"number\" only");
        }
        return std::nullopt;
    }
    const NumberRange range{row.Word("unit", UnitsFor(kind)), row.Number("minimum"), row.Number("maximum")};
    if (range.minimum > range.maximum)
        row.Fail("\"minimum\" is above \"maximum\"", "a range");
    return range;
}

ChoiceDescription ReadChoice(const DescriptionElement& choice)
{
    choice.AllowAttributes({"value", "label"});
    choice.AllowChildren({});
    return ChoiceDescription{choice.WideText("value"), choice.WideText("label")};
}

std::vector<ChoiceDescription> ReadChoices(const DescriptionElement& row, ControlKind control)
{
    std::vector<ChoiceDescription> choices;
    std::set<OvxStringT> values;
    for (const DescriptionElement& element : row.Children("choice"))
    {
        choices.push_back(ReadChoice(element));
        if (!values.insert(choices.back().value).second)
            element.Fail("the row has a choice with this value already", "each value once");
    }
    if (control == ControlKind::Switch && choices.size() != 2)
        row.Fail("a switch with " + std::to_string(choices.size()) + " choices", "two, the first for off");
    if (control == ControlKind::Choice && choices.empty())
        row.Fail("it has no choices", "at least one <choice>");
    if (control != ControlKind::Choice && control != ControlKind::Switch && !choices.empty())
        row.Fail("it has choices", "them with the controls \"choice\" and \"switch\" only");
    return choices;
}

RowDescription ReadRow(const DescriptionElement& element)
{
    element.AllowAttributes(
        {"identifier", "property", "label", "control", "kind", "unit", "minimum", "maximum", "order"});
    element.AllowChildren({"choice"});
    RowDescription row;
    row.identifier = element.WideText("identifier");
    row.property = element.WideText("property");
    row.label = element.WideText("label");
    row.control = element.Word<ControlKind>("control", kControls);
    row.kind = element.Word("kind", KindsFor(row.control));
    row.range = ReadRange(element, row.control, row.kind);
    row.choices = ReadChoices(element, row.control);
    row.order = element.Number("order");
    return row;
}

std::vector<RowDescription> ReadRows(const DescriptionElement& panel)
{
    std::vector<RowDescription> rows;
    std::set<OvxStringT> identifiers;
    std::set<OvxStringT> properties;
    for (const DescriptionElement& element : panel.Children("row"))
    {
        rows.push_back(ReadRow(element));
        if (!identifiers.insert(rows.back().identifier).second)
            element.Fail("the panel has a row with this identifier already", "each identifier once");
        if (!properties.insert(rows.back().property).second)
            element.Fail("the panel has a row with this property already", "each property once");
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const RowDescription& left, const RowDescription& right)
                     { return left.order < right.order; });
    return rows;
}

void ReadAttributeName(const DescriptionElement& map, PropertyMapping& mapping)
{
    const std::string qualified = map.Text("attribute");
    const std::size_t colon = qualified.find(':');
    const std::string_view prefix = std::string_view(qualified).substr(0, colon);
    const auto* const known = std::find_if(std::begin(kNamespaces), std::end(kNamespaces),
                                           [&](const auto& each) { return each.word == prefix; });
    if (colon == std::string::npos || colon + 1 == qualified.size() || known == std::end(kNamespaces))
        map.Fail("attribute \"attribute\" is \"" + qualified + "\"",
                 "an attribute with one of the prefixes draw, dr3d, fo, style, svg, table and text, as in "
                 "draw:shadow");
    mapping.namespaceUri = known->meaning;
    mapping.attribute = qualified.substr(colon + 1);
}

std::vector<ReferenceHost::PropertyChoice> ReadMappedChoices(const DescriptionElement& map,
                                                             PropertyCodec codec)
{
    std::vector<ReferenceHost::PropertyChoice> choices;
    for (const DescriptionElement& element : map.Children("choice"))
    {
        element.AllowAttributes({"text", "value"});
        element.AllowChildren({});
        choices.push_back({element.Text("text"), element.Text("value")});
    }
    if (codec != PropertyCodec::Choice && !choices.empty())
        map.Fail("it has choices", "them with the codec \"choice\" only");
    return choices;
}

PropertyMapping ReadMapping(const DescriptionElement& map, const OvxStringT& category)
{
    map.AllowAttributes({"key", "element", "attribute", "codec", "definition"});
    map.AllowChildren({"choice"});
    PropertyMapping mapping;
    mapping.category = Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(category));
    mapping.key = Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(map.WideText("key")));
    const auto element = ReferenceHost::FindPropertyElement(map.Text("element"));
    if (!element)
        map.Fail("attribute \"element\" is \"" + map.Text("element") + "\"",
                 "\"graphic-properties\", \"paragraph-properties\" or \"text-properties\"");
    const auto codec = ReferenceHost::FindPropertyCodec(map.Text("codec"));
    if (!codec)
        map.Fail("attribute \"codec\" is \"" + map.Text("codec") + "\"",
                 "one of the codecs, such as \"colour\", \"length\" or \"text\"");
    mapping.element = *element;
    mapping.codec = *codec;
    ReadAttributeName(map, mapping);
    mapping.choices = ReadMappedChoices(map, *codec);
    if (map.Has("definition"))
        mapping.definition = map.Text("definition");
    if (map.Has("definition") && *codec != PropertyCodec::StyleName)
        map.Fail("attribute \"definition\" stands here", "it with the codec \"style-name\" only");
    return mapping;
}

std::optional<CategoryDescription> ReadCategory(const DescriptionElement& panel, const OvxStringT& category)
{
    const std::vector<DescriptionElement> elements = panel.Children("category");
    if (elements.empty())
        return std::nullopt;
    if (elements.size() > 1)
        elements[1].Fail("a second category", "at most one in a panel");
    const DescriptionElement& element = elements.front();
    element.AllowAttributes({"name", "title"});
    element.AllowChildren({"map"});
    CategoryDescription own{element.WideText("name"), element.WideText("title"), {}};
    if (own.name != category)
        element.Fail("its name is not the panel's category", "\"" + OvxUtils::ToUtf8(category) + "\"");
    for (const DescriptionElement& map : element.Children("map"))
        own.mappings.push_back(ReadMapping(map, own.name));
    if (own.mappings.empty())
        element.Fail("it maps nothing", "at least one <map>");
    return own;
}

OvxStringT ReadPanelName(const DescriptionElement& panel)
{
    const std::string name = panel.Text("name");
    if (name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") != std::string::npos)
        panel.Fail("attribute \"name\" is \"" + name + "\"", "lower-case letters, digits and hyphens");
    return OvxUtils::FromUtf8(name);
}

OvxStringT ReadModule(const DescriptionElement& panel)
{
    const std::string module = panel.Text("module");
    if (module.find_first_of("/\\:") != std::string::npos)
        panel.Fail("attribute \"module\" is \"" + module + "\"",
                   "the name of a file in the description's folder, without prefix and suffix");
    return OvxUtils::FromUtf8(module);
}

} // namespace

PanelDescription ParsePanelDescription(std::string_view text, const std::filesystem::path& file)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    const std::string label = file.string();
    const auto tree = ReferenceHost::ParseXml(text, label);
    const DescriptionText source{text.starts_with(kByteOrderMark) ? text.substr(kByteOrderMark.size()) : text,
                                 label};
    const DescriptionElement panel(source, tree->document_element());
    if (std::string_view(tree->document_element().name()) != "panel")
        panel.Fail("this is no panel description", "the element <panel>");
    panel.AllowAttributes({"name", "module", "class", "title", "order", "category", "targets"});
    panel.AllowChildren({"category", "row"});
    PanelDescription description;
    description.file = file;
    description.name = ReadPanelName(panel);
    description.module = ReadModule(panel);
    description.className = panel.WideText("class");
    description.title = panel.WideText("title");
    description.order = panel.Number("order");
    description.category = panel.WideText("category");
    description.targets = panel.Word<TargetKind>("targets", kTargetKinds);
    description.ownCategory = ReadCategory(panel, description.category);
    description.rows = ReadRows(panel);
    return description;
}

PanelDescription ReadPanelDescription(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    if (!stream || !text)
        throw ReferenceHost::DocumentError("it cannot be read", file.string(), "a panel description");
    return ParsePanelDescription(text.str(), file);
}

} // namespace Workbench
