#include "reference_host/document/StyleReader.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/document/XmlSource.h"
#include "reference_host/document/XmlText.h"

#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// An element that defines names, and the kind that the PropertyMappings calls them by.
struct Definition
{
    XmlName element;
    std::string_view kind;
};

constexpr std::array<Definition, 7> kDefinitions{{{{Odf::kDraw, "gradient"}, "gradient"},
                                                  {{Odf::kSvg, "linearGradient"}, "gradient"},
                                                  {{Odf::kSvg, "radialGradient"}, "gradient"},
                                                  {{Odf::kDraw, "hatch"}, "hatch"},
                                                  {{Odf::kDraw, "fill-image"}, "fill-image"},
                                                  {{Odf::kDraw, "stroke-dash"}, "stroke-dash"},
                                                  {{Odf::kDraw, "marker"}, "marker"}}};

constexpr std::array<std::pair<std::string_view, StyleFamily>, 3> kFamilies{
    {{"graphic", StyleFamily::Graphic}, {"paragraph", StyleFamily::Paragraph}, {"text", StyleFamily::Text}}};

std::optional<StyleFamily> FindFamily(std::string_view name)
{
    const auto* const found =
        std::ranges::find(kFamilies, name, &std::pair<std::string_view, StyleFamily>::first);
    return found == kFamilies.end() ? std::nullopt : std::optional(found->second);
}

/// What is read of the start tag of a style, by its place in what comes back.
constexpr std::array<XmlName, 7> kStyleAttributes{{{Odf::kStyle, "family"},
                                                   {Odf::kStyle, "name"},
                                                   {Odf::kStyle, "parent-style-name"},
                                                   {Odf::kStyle, "display-name"},
                                                   {Odf::kStyle, "hidden"},
                                                   {OwnMarkup::kNamespace, OwnMarkup::kCategory},
                                                   {OwnMarkup::kNamespace, OwnMarkup::kParent}}};

/// Tells whether styles of a family hold an element: each family adds one to those of the next.
bool HoldsElement(StyleFamily family, PropertyElement element)
{
    return static_cast<int>(element) >= static_cast<int>(family);
}

std::size_t FindTextColourRow(const PropertyMappings& table)
{
    const Styles::PropertyKey color(Styles::PooledString<Styles::StringPool>(L"color"));
    const PropertyMapping* const row = table.FindRow(Styles::GetCharacterStyleCategoryName(), color);
    return static_cast<std::size_t>(row - table.GetRows().data());
}

} // namespace

bool IsDefinitionKind(std::string_view kind)
{
    return std::ranges::find(kDefinitions, kind, &Definition::kind) != kDefinitions.end();
}

StyleReader::StyleReader(const PropertyMappings& properties, const PaletteColours& colours,
                         StyleCatalogue& target, Warnings& reports)
    : table(properties),
      palette(colours),
      catalogue(target),
      warnings(reports),
      textColourRow(FindTextColourRow(properties))
{
}

void StyleReader::ReadDeclarations(pugi::xml_node root, XmlNames& names)
{
    for (const pugi::xml_node container : root.children())
    {
        const XmlNames::Scope scope(names, container);
        const XmlName name = names.Of(container);
        if (name != XmlName{Odf::kOffice, "font-face-decls"} && name != XmlName{Odf::kOffice, "styles"})
            continue;
        for (const pugi::xml_node element : container.children())
            ReadDeclaration(element, names);
    }
}

void StyleReader::ReadDeclaration(pugi::xml_node element, XmlNames& names)
{
    const XmlNames::Scope scope(names, element);
    const XmlName name = names.Of(element);
    if (name == XmlName{Odf::kStyle, "font-face"})
    {
        const std::string_view face = names.Attribute(element, {Odf::kStyle, "name"});
        OvxStringT family = ParseFontFamily(names.Attribute(element, {Odf::kSvg, "font-family"}));
        declared.fontFamilies[std::string(face)] =
            family.empty() ? OvxUtils::FromUtf8(face) : std::move(family);
        return;
    }
    const auto* const definition = std::ranges::find(kDefinitions, name, &Definition::element);
    const std::string_view encoded = names.Attribute(element, {Odf::kDraw, "name"});
    if (definition == kDefinitions.end() || encoded.empty())
        return;
    const std::string_view displayName = names.Attribute(element, {Odf::kDraw, "display-name"});
    declared.definitions[DefinitionKey(definition->kind, encoded)] =
        displayName.empty() ? DecodeStyleName(encoded) : OvxUtils::FromUtf8(displayName);
}

void StyleReader::ReadStyles(pugi::xml_node container, std::string_view text, XmlNames& names,
                             StyleOrigin origin, ProgressSpan progress)
{
    const auto elements = container.children();
    const auto count = static_cast<std::size_t>(std::distance(elements.begin(), elements.end()));
    progress.Start(count);
    catalogue.Reserve(origin, count / 2); // Every other child is the blanks between two styles.
    std::size_t done = 0;
    for (const pugi::xml_node element : elements)
    {
        progress.Reach(done++);
        const XmlNames::Scope scope(names, element);
        const XmlName name = names.Of(element);
        if (name == XmlName{Odf::kStyle, "style"})
            ReadStyle(element, text, names, origin);
        else if (name == XmlName{Odf::kStyle, "default-style"})
            ReadDefault(element, text, names);
    }
}

void StyleReader::ReadDefault(pugi::xml_node element, std::string_view text, XmlNames& names)
{
    if (defaults || names.Attribute(element, {Odf::kStyle, "family"}) != "graphic")
        return;
    StyleRecord record;
    record.place = PlaceOfElement(element, text);
    ReadProperties(element, names, record);
    defaults = std::move(record);
}

void StyleReader::ReadStyle(pugi::xml_node element, std::string_view text, XmlNames& names,
                            StyleOrigin origin)
{
    const auto [familyName, name, parentName, displayName, hidden, ownCategory, ownParentName] =
        names.Attributes(element, kStyleAttributes);
    const std::optional<StyleFamily> family = FindFamily(familyName);
    if (!family)
        return;
    StyleRecord record;
    record.family = *family;
    record.origin = origin;
    record.place = PlaceOfElement(element, text);
    record.name = name;
    if (record.name.empty())
        return warnings.Add("a style without a name was passed over");
    record.parentName = parentName;
    record.displayName = displayName;
    record.isHidden = hidden == "true";
    record.ownCategory = ownCategory;
    record.ownParentName = ownParentName;
    record.hasNoParent = parentName.empty() && ownParentName.empty() && ownParentName.data() != nullptr;
    ReadProperties(element, names, record);
    ReadSubstyleParents(element, names, record);
    // Programs repeat styles word for word; only a difference is worth a report.
    const StyleRecord* const earlier = catalogue.AddUnlessThere(record);
    if (earlier == nullptr)
        return;
    if (earlier->parentName != record.parentName || earlier->values != record.values)
        warnings.AddAbout(record, "it is there twice; the first one counts");
}

void StyleReader::ReadSubstyleParents(pugi::xml_node element, XmlNames& names, StyleRecord& record) const
{
    if (record.family != StyleFamily::Graphic || !names.IsInForce(OwnMarkup::kNamespace))
        return;
    for (const Styles::PropertyKey& key : table.GetCategories())
    {
        std::string category = OvxUtils::ToUtf8(key.GetString());
        const std::string attribute = category + std::string(OwnMarkup::kSubstyleParentSuffix);
        const std::string_view parent = names.Attribute(element, {OwnMarkup::kNamespace, attribute});
        if (!parent.empty())
            record.substyleParents.push_back({std::move(category), std::string(parent), nullptr});
    }
    const std::string listed =
        " " + std::string(names.Attribute(element, {OwnMarkup::kNamespace, OwnMarkup::kInheritedValues})) +
        " ";
    // Without the parents, which another program may have dropped, what stands there is all there is.
    const auto isInherited = [&](const StyleValue& value)
    {
        const PropertyMapping& row = table.GetRows()[value.row];
        const auto isCategory = [&](const SubstyleParent& parent)
        { return OvxUtils::FromUtf8(parent.category) == row.category.GetString(); };
        return listed.find(" " + NameOfProperty(row) + " ") != std::string::npos &&
               std::ranges::any_of(record.substyleParents, isCategory);
    };
    const auto own =
        std::stable_partition(record.values.begin(), record.values.end(), std::not_fn(isInherited));
    record.inheritedValues.assign(own, record.values.end());
    record.values.erase(own, record.values.end());
}

void StyleReader::ReadProperties(pugi::xml_node styleElement, XmlNames& names, StyleRecord& record)
{
    found.values.clear();
    found.links.clear();
    for (const pugi::xml_node element : styleElement.children())
    {
        if (element.type() != pugi::node_element)
            continue;
        const XmlNames::Scope scope(names, element);
        const XmlName name = names.Of(element);
        const std::optional<PropertyElement> kind = FindPropertyElement(name.local);
        if (name.uri != Odf::kStyle || !kind || !HoldsElement(record.family, *kind))
            continue;
        for (pugi::xml_attribute attribute = element.first_attribute(); attribute;
             attribute = attribute.next_attribute())
            ReadAttribute(attribute, names.Of(attribute), *kind, record);
    }
    record.values = TakeFirstRows();
    for (const ColourLink& link : found.links)
        LinkColour(link, record);
}

void StyleReader::ReadAttribute(pugi::xml_attribute attribute, XmlName name, PropertyElement element,
                                const StyleRecord& record)
{
    const std::string_view text = TrimXmlBlanks(attribute.value());
    if (element == PropertyElement::Text && name == XmlName{Odf::kStyle, "use-window-font-color"})
    {
        if (text == "true")
            found.values.push_back({textColourRow, {}, 0});
        return;
    }
    if (name.uri == OwnMarkup::kNamespace && name.local.ends_with(OwnMarkup::kResourceSuffix))
    {
        const std::string_view colour =
            name.local.substr(0, name.local.size() - OwnMarkup::kResourceSuffix.size());
        found.links.push_back({element, colour, attribute.value()});
        return;
    }
    for (const std::size_t place : table.FindRows(name.local))
    {
        const PropertyMapping& row = table.GetRows()[place];
        if (row.element != element || row.namespaceUri != name.uri)
            continue;
        std::optional<ParsedValue> parsed = ParseProperty(row, attribute.value(), declared);
        if (parsed)
            found.values.push_back({place, std::move(parsed->value), parsed->percentOfInherited});
        else if (text != "inherit")
            warnings.AddAbout(record, "\"" + std::string(text) + "\" is no value for " + attribute.name() +
                                          "; it counts as not set");
    }
}

std::vector<StyleValue> StyleReader::TakeFirstRows()
{
    // By properties: an extension may hold further rows of one that do not stand beside the others. Of each,
    // the colour of the window stands before a colour, and otherwise the earlier row before the later.
    order.clear();
    for (std::size_t place = 0; place < found.values.size(); ++place)
    {
        const StyleValue& value = found.values[place];
        order.push_back({table.GetFirstRow(value.row), value.row, !value.IsWindowColour(), place});
    }
    std::ranges::sort(order);
    const auto isSameProperty = [](const Ordered& left, const Ordered& right)
    { return left.firstRow == right.firstRow; };
    order.erase(std::unique(order.begin(), order.end(), isSameProperty), order.end());

    std::vector<StyleValue> values;
    values.reserve(order.size());
    for (const Ordered& each : order)
    {
        values.push_back(std::move(found.values[each.place]));
        values.back().row = each.firstRow;
    }
    return values;
}

void StyleReader::LinkColour(const ColourLink& link, StyleRecord& record)
{
    const std::string problem =
        "its " + std::string(link.attribute) + " names the palette entry \"" + link.entry + "\", ";
    const auto value =
        std::ranges::find_if(record.values,
                             [&](const StyleValue& each)
                             {
                                 const PropertyMapping& row = table.GetRows()[each.row];
                                 return row.element == link.element && row.attribute == link.attribute;
                             });
    const CLR_COLORSPEC* const plain =
        value == record.values.end() ? nullptr : value->value.TryGet<CLR_COLORSPEC>();
    if (plain == nullptr)
        return warnings.AddAbout(record,
                                 problem + "but the colour itself is missing; the name was passed over");
    const auto entry = palette.find(link.entry);
    if (entry == palette.end())
        return warnings.AddAbout(record, problem + "which does not exist; the colour itself counts");
    // Other programs see the colour alone, and may have changed it.
    if (plain->ToRgb() != entry->second)
        return warnings.AddAbout(record, problem + "which looks different; the colour itself counts");
    value->value = OvxUtils::Any(CLR_COLORSPEC::FromResource(OvxUtils::FromUtf8(link.entry), entry->second));
}

} // namespace ReferenceHost
