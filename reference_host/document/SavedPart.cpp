#include "reference_host/document/SavedPart.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlPrefixes.h"

#include <algorithm>
#include <array>

namespace ReferenceHost
{

namespace
{

/// How much of the work is done when there is a tree, before it is indexed.
constexpr double kParsed = 0.5;

/// What stands in the root of a document, in this order.
constexpr std::array<std::string_view, 8> kContainers{
    "meta", "settings", "scripts", "font-face-decls", "styles", "automatic-styles", "master-styles", "body"};

} // namespace

SavedPart::SavedPart(std::string_view text, const std::string& label, XmlTrust trust,
                     const ProgressSpan& progress)
    : source(text, label, progress.Part(0, kParsed), trust), edits(source)
{
    ProgressSpan indexing = progress.Part(ProgressPhase::Comparing, kParsed, 1);
    indexing.Start(text.size());
    Index(source.GetRoot(), indexing);
}

void SavedPart::Index(pugi::xml_node element, ProgressSpan& progress)
{
    const std::size_t place = source.BeginOf(element);
    progress.Reach(place);
    elements.push_back({place, element});
    for (const pugi::xml_attribute attribute : element.attributes())
    {
        const std::string_view name = attribute.name();
        if (name.ends_with("style-name"))
            ++references[attribute.value()];
    }
    if (IsXmlElement(element, {Odf::kStyle, "style"}))
        styleNames.insert(FindXmlAttribute(element, Odf::kStyle, "name").value());
    for (const pugi::xml_node child : element.children())
    {
        if (child.type() == pugi::node_element)
            Index(child, progress);
    }
}

pugi::xml_node SavedPart::FindElement(std::size_t place) const
{
    const auto found = std::ranges::lower_bound(elements, place, {}, &PlacedElement::place);
    const bool isThere = found != elements.end() && found->place == place;
    return isThere ? found->element : pugi::xml_node();
}

std::size_t SavedPart::CountReferences(std::string_view styleName) const
{
    const auto found = references.find(styleName);
    return found == references.end() ? 0 : found->second;
}

bool SavedPart::MentionsStyle(std::string_view styleName) const
{
    return styleNames.contains(styleName) || references.contains(styleName);
}

pugi::xml_node SavedPart::FindContainer(std::string_view local) const
{
    for (const pugi::xml_node child : source.GetRoot().children())
    {
        if (IsXmlElement(child, {Odf::kOffice, local}))
            return child;
    }
    return {};
}

void InsertContainer(SavedPart& part, std::string_view local, const std::string& xml)
{
    const pugi::xml_node root = part.GetSource().GetRoot();
    const XmlName name{Odf::kOffice, local};
    const std::string element = WriteStartTag(root, name, {}, false) + xml + WriteEndTag(root, name);
    const auto* const own = std::ranges::find(kContainers, local);
    for (const auto* later = own + 1; later < kContainers.end(); ++later)
    {
        if (const pugi::xml_node found = part.FindContainer(*later))
            return part.GetEdits().InsertBefore(found, element);
    }
    part.GetEdits().AppendChild(root, element);
}

} // namespace ReferenceHost
