#include "reference_host/document/XmlPrefixes.h"

#include "reference_host/document/OdfNamespaces.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// The prefixes that people know, for namespaces that a drawing has not declared.
constexpr std::array<std::pair<std::string_view, std::string_view>, 9> kUsualPrefixes{
    {{Odf::kOffice, "office"},
     {Odf::kStyle, "style"},
     {Odf::kText, "text"},
     {Odf::kDraw, "draw"},
     {Odf::kFo, "fo"},
     {Odf::kSvg, "svg"},
     {Odf::kMeta, "meta"},
     {Odf::kManifest, "manifest"},
     {OwnMarkup::kNamespace, "sp"}}};

std::string_view UsualPrefix(std::string_view uri)
{
    const auto* const known =
        std::ranges::find(kUsualPrefixes, uri, &std::pair<std::string_view, std::string_view>::first);
    return known == kUsualPrefixes.end() ? "ns" : known->second;
}

} // namespace

std::string_view ResolvePrefix(pugi::xml_node element, std::string_view prefix)
{
    const std::string declaration = prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix);
    for (; !element.empty(); element = element.parent())
    {
        if (const pugi::xml_attribute found = element.attribute(declaration.c_str()))
            return found.value();
    }
    return {};
}

pugi::xml_attribute FindXmlAttribute(pugi::xml_node element, std::string_view uri, std::string_view local)
{
    for (const pugi::xml_attribute attribute : element.attributes())
    {
        const std::string_view name = attribute.name();
        const std::size_t colon = name.find(':');
        const bool isLocal = colon != std::string_view::npos && name.substr(colon + 1) == local;
        if (isLocal && ResolvePrefix(element, name.substr(0, colon)) == uri)
            return attribute;
    }
    return {};
}

XmlName ResolveElement(pugi::xml_node element)
{
    const std::string_view name = element.name();
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos)
        return {ResolvePrefix(element, {}), name};
    return {ResolvePrefix(element, name.substr(0, colon)), name.substr(colon + 1)};
}

bool IsXmlElement(pugi::xml_node node, const XmlName& name)
{
    const bool canBe =
        node.type() == pugi::node_element && std::string_view(node.name()).ends_with(name.local);
    return canBe && ResolveElement(node) == name;
}

XmlPrefixes::XmlPrefixes(pugi::xml_node scopeElement) : scope(scopeElement)
{
}

std::string XmlPrefixes::Qualify(std::string_view uri, std::string_view local)
{
    std::string prefix = FindBound(uri);
    if (prefix.empty())
    {
        prefix = UsualPrefix(uri);
        for (std::size_t number = 2; IsTaken(prefix); ++number)
            prefix = std::string(UsualPrefix(uri)) + std::to_string(number);
        declarations.push_back({prefix, uri});
    }
    return prefix.append(":").append(local);
}

std::string XmlPrefixes::FindBound(std::string_view uri) const
{
    const auto declared = std::ranges::find(declarations, uri, &Declaration::uri);
    if (declared != declarations.end())
        return declared->prefix;
    for (pugi::xml_node element = scope; !element.empty(); element = element.parent())
    {
        for (const pugi::xml_attribute attribute : element.attributes())
        {
            const std::string_view name = attribute.name();
            // The default namespace does not reach attributes, so that only prefixes count.
            const bool isBound = name.starts_with("xmlns:") && attribute.value() == uri &&
                                 ResolvePrefix(scope, name.substr(6)) == uri;
            if (isBound)
                return std::string(name.substr(6));
        }
    }
    return {};
}

bool XmlPrefixes::IsTaken(std::string_view prefix) const
{
    const bool isDeclared =
        std::ranges::find(declarations, prefix, &Declaration::prefix) != declarations.end();
    return isDeclared || !ResolvePrefix(scope, prefix).empty();
}

} // namespace ReferenceHost
