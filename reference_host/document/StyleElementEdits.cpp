#include "reference_host/document/StyleElementEdits.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/PropertyFormats.h"
#include "reference_host/document/XmlPrefixes.h"

#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr std::string_view kWindowColour = "use-window-font-color";

using Attributes = std::vector<AttributeEdit>;

std::size_t KindOf(PropertyElement element)
{
    return static_cast<std::size_t>(element);
}

XmlName ElementNameOf(std::size_t kind)
{
    return {Odf::kStyle, ElementName(static_cast<PropertyElement>(kind))};
}

bool IsNamed(const AttributeEdit& edit, std::string_view uri, std::string_view local)
{
    return edit.uri == uri && edit.local == local;
}

void SetEdit(Attributes& attributes, std::string_view uri, std::string_view local,
             std::optional<std::string> value)
{
    const auto same = std::ranges::find_if(attributes, [&](const AttributeEdit& each)
                                           { return IsNamed(each, uri, local); });
    if (same != attributes.end())
        same->value = std::move(value);
    else
        attributes.push_back({uri, std::string(local), std::move(value)});
}

/// The value of an attribute that stands in one of these elements.
std::optional<std::string_view> FindPresent(const std::vector<pugi::xml_node>& nodes, std::string_view uri,
                                            std::string_view local)
{
    for (const pugi::xml_node node : nodes)
    {
        if (const pugi::xml_attribute found = FindXmlAttribute(node, uri, local))
            return found.value();
    }
    return std::nullopt;
}

bool HasValue(const Attributes& attributes)
{
    return std::ranges::any_of(attributes, [](const AttributeEdit& edit) { return edit.value.has_value(); });
}

pugi::xml_node FirstChildElement(pugi::xml_node element)
{
    return element.find_child([](pugi::xml_node child) { return child.type() == pugi::node_element; });
}

/// The elements of a style that repeat graphic properties under another namespace than that of styles.
std::vector<pugi::xml_node> FindExtensions(pugi::xml_node style)
{
    std::vector<pugi::xml_node> found;
    for (const pugi::xml_node child : style.children())
    {
        if (child.type() != pugi::node_element)
            continue;
        const XmlName name = ResolveElement(child);
        if (name.local == ElementName(PropertyElement::Graphic) && name.uri != Odf::kStyle)
            found.push_back(child);
    }
    return found;
}

} // namespace

void AddOwnAttributes(std::vector<AttributeEdit>& attributes, const StyleWish& wish)
{
    for (const auto& [local, value] : wish.ownAttributes)
        attributes.push_back(
            {OwnMarkup::kNamespace, local, value.empty() ? std::nullopt : std::optional(value)});
}

StyleElementEdits::StyleElementEdits(const SavingContext& savingContext, const DeclaredNames& declaredNames)
    : context(savingContext), names(declaredNames)
{
}

void StyleElementEdits::EditProperties(pugi::xml_node style, const PropertyValues& changes,
                                       const std::string& name, XmlEdits& edits) const
{
    PropertyNodes nodes;
    for (const pugi::xml_node child : style.children())
    {
        for (std::size_t kind = 0; kind < nodes.size(); ++kind)
        {
            if (IsXmlElement(child, ElementNameOf(kind)))
                nodes[kind].push_back(child);
        }
    }
    const ElementAttributes attributes = Expand(nodes, changes, name);
    for (std::size_t kind = 0; kind < nodes.size(); ++kind)
    {
        if (nodes[kind].empty() && HasValue(attributes[kind]))
            InsertElement(style, nodes, kind,
                          WriteStartTag(style, ElementNameOf(kind), attributes[kind], true), edits);
        for (const pugi::xml_node node : nodes[kind])
        {
            for (AttributeEdit edit : attributes[kind])
            {
                // The first element holds what is set; what others say of it goes.
                if (node != nodes[kind].front())
                    edit.value.reset();
                edits.SetAttribute(node, std::move(edit));
            }
        }
    }
}

PropertyValues StyleElementEdits::FindRepeated(pugi::xml_node style, const PropertyValues& changes) const
{
    const std::vector<pugi::xml_node> extensions = FindExtensions(style);
    PropertyValues repeated;
    for (const auto& [place, value] : changes)
    {
        const PropertyMapping& row = context.data.table.GetRows()[place];
        if (row.element == PropertyElement::Graphic &&
            FindPresent(extensions, row.namespaceUri, row.attribute))
            repeated.emplace(place, value);
    }
    return repeated;
}

void StyleElementEdits::EditRepeated(pugi::xml_node style, const PropertyValues& changes,
                                     XmlEdits& edits) const
{
    for (const pugi::xml_node extension : FindExtensions(style))
    {
        for (const auto& [place, value] : changes)
        {
            const PropertyMapping& row = context.data.table.GetRows()[place];
            const pugi::xml_attribute present = FindXmlAttribute(extension, row.namespaceUri, row.attribute);
            if (present)
                edits.SetAttribute(extension, {row.namespaceUri, row.attribute,
                                               FormatProperty(row, value, present.value(), names)});
        }
    }
}

std::string StyleElementEdits::WriteStyle(pugi::xml_node container, const std::string& elementName,
                                          const std::vector<AttributeEdit>& attributes,
                                          const PropertyValues& values, const std::string& name) const
{
    const ElementAttributes properties = Expand({}, values, name);
    std::string inner;
    for (std::size_t kind = 0; kind < properties.size(); ++kind)
    {
        if (HasValue(properties[kind]))
            inner += WriteStartTag(container, ElementNameOf(kind), properties[kind], true);
    }
    const XmlName styleName{Odf::kStyle, elementName};
    if (inner.empty())
        return WriteStartTag(container, styleName, attributes, true);
    return WriteStartTag(container, styleName, attributes, false) + inner + WriteEndTag(container, styleName);
}

StyleElementEdits::ElementAttributes StyleElementEdits::Expand(const PropertyNodes& nodes,
                                                               const PropertyValues& changes,
                                                               const std::string& name) const
{
    ElementAttributes attributes;
    for (const auto& [row, value] : changes)
        ExpandChange(nodes, row, value, name, attributes);
    return attributes;
}

void StyleElementEdits::ExpandChange(const PropertyNodes& nodes, std::size_t firstRow,
                                     const OvxUtils::Any& value, const std::string& name,
                                     ElementAttributes& attributes) const
{
    const PropertyMappings& table = context.data.table;
    const auto& rows = table.GetRows();
    std::optional<std::pair<std::size_t, std::string>> written;
    for (std::size_t place = 0; place < rows.size() && !written && !value.IsEmpty(); ++place)
    {
        const PropertyMapping& row = rows[place];
        if (table.GetFirstRow(place) != firstRow || row.side != ShorthandSide::None)
            continue;
        const auto previous = FindPresent(nodes[KindOf(row.element)], row.namespaceUri, row.attribute);
        if (auto text = FormatProperty(row, value, previous.value_or(std::string_view()), names))
            written = {place, std::move(*text)};
    }
    if (!written && !value.IsEmpty())
    {
        return context.warnings.Add(name + ": its " + NameOfProperty(rows[firstRow]) +
                                    " has no form in drawings; it was not saved");
    }
    for (std::size_t place = 0; place < rows.size(); ++place)
    {
        const PropertyMapping& row = rows[place];
        if (table.GetFirstRow(place) != firstRow)
            continue;
        if (row.side != ShorthandSide::None)
        {
            SplitShorthand(nodes, row, firstRow, attributes);
            continue;
        }
        const bool isWritten = written && written->first == place;
        SetEdit(attributes[KindOf(row.element)], row.namespaceUri, row.attribute,
                isWritten ? std::optional(written->second) : std::nullopt);
        if (row.codec == PropertyCodec::Colour)
            ExpandColour(row, nodes, value, name, attributes);
    }
}

void StyleElementEdits::SplitShorthand(const PropertyNodes& nodes, const PropertyMapping& shorthand,
                                       std::size_t firstRow, ElementAttributes& attributes) const
{
    const std::size_t kind = KindOf(shorthand.element);
    const auto text = FindPresent(nodes[kind], shorthand.namespaceUri, shorthand.attribute);
    if (!text)
        return;
    const PropertyMappings& table = context.data.table;
    for (const std::size_t place : table.FindRows(shorthand.attribute))
    {
        const PropertyMapping& side = table.GetRows()[place];
        const PropertyMapping& single = table.GetRows()[table.GetFirstRow(place)];
        const bool isEdited =
            std::ranges::any_of(attributes[kind], [&](const AttributeEdit& edit)
                                { return IsNamed(edit, single.namespaceUri, single.attribute); });
        const bool isPresent = FindPresent(nodes[kind], single.namespaceUri, single.attribute).has_value();
        const std::string_view piece = PickShorthandSide(*text, side.side);
        if (table.GetFirstRow(place) != firstRow && !isEdited && !isPresent && !piece.empty())
            SetEdit(attributes[kind], single.namespaceUri, single.attribute, std::string(piece));
    }
    SetEdit(attributes[kind], shorthand.namespaceUri, shorthand.attribute, std::nullopt);
}

void StyleElementEdits::ExpandColour(const PropertyMapping& row, const PropertyNodes& nodes,
                                     const OvxUtils::Any& value, const std::string& name,
                                     ElementAttributes& attributes) const
{
    const std::size_t kind = KindOf(row.element);
    std::optional<std::string> entry;
    const auto* const colour = value.TryGet<CLR_COLORSPEC>();
    if (colour != nullptr && colour->GetModel() == CLR_COLORSPEC::kResource)
    {
        const auto& palette = context.data.palette;
        const auto found = std::ranges::find(palette, colour->GetResourceName(), &PaletteEntry::name);
        if (found != palette.end() && found->look == colour->ToRgb())
            entry = OvxUtils::ToUtf8(found->name);
        else
            context.warnings.Add(name + ": its " + NameOfProperty(row) + " refers to \"" +
                                 OvxUtils::ToUtf8(colour->GetResourceName()) +
                                 "\", which the palette does not hold with this look; the colour was saved");
    }
    SetEdit(attributes[kind], OwnMarkup::kNamespace, row.attribute + std::string(OwnMarkup::kResourceSuffix),
            std::move(entry));
    const bool isOfText =
        row.category == Styles::GetCharacterStyleCategoryName() && row.element == PropertyElement::Text;
    if (isOfText && FindPresent(nodes[kind], Odf::kStyle, kWindowColour))
    {
        SetEdit(attributes[kind], Odf::kStyle, kWindowColour,
                colour != nullptr ? std::optional<std::string>("false") : std::nullopt);
    }
}

void StyleElementEdits::InsertElement(pugi::xml_node style, const PropertyNodes& nodes, std::size_t kind,
                                      const std::string& xml, XmlEdits& edits) const
{
    for (std::size_t later = kind + 1; later < nodes.size(); ++later)
    {
        if (!nodes[later].empty())
            return edits.InsertBefore(nodes[later].front(), xml);
    }
    for (std::size_t earlier = kind; earlier-- > 0;)
    {
        if (!nodes[earlier].empty())
            return edits.InsertBehind(nodes[earlier].back(), xml);
    }
    const pugi::xml_node first = FirstChildElement(style);
    if (first.empty())
        edits.AppendChild(style, xml);
    else
        edits.InsertBefore(first, xml);
}

} // namespace ReferenceHost
