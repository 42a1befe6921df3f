#include "reference_host/document/XmlNames.h"

#include <algorithm>

namespace ReferenceHost
{

XmlNames::Scope::Scope(XmlNames& owner, pugi::xml_node element) : names(owner), mark(owner.bindings.Mark())
{
    for (pugi::xml_attribute attribute = element.first_attribute(); attribute;
         attribute = attribute.next_attribute())
    {
        // Nearly all elements and attributes of a drawing come here, and few are declarations.
        const char* const spelling = attribute.name();
        if (spelling[0] != 'x' || spelling[1] != 'm')
            continue;
        const std::string_view name = spelling;
        if (!name.starts_with("xmlns"))
            continue;
        if (name.size() == 5)
            names.bindings.Declare({}, attribute.value());
        else if (name[5] == ':')
            names.bindings.Declare(name.substr(6), attribute.value());
    }
}

XmlNames::Scope::~Scope()
{
    names.bindings.Release(mark);
}

XmlName XmlNames::Of(pugi::xml_node element)
{
    const std::string_view name = element.name();
    const std::size_t colon = name.find(':');
    const bool isPlain = colon == std::string_view::npos;
    const std::string_view* const uri = bindings.Find(isPlain ? std::string_view() : name.substr(0, colon));
    return {uri == nullptr ? std::string_view() : *uri, isPlain ? name : name.substr(colon + 1)};
}

XmlName XmlNames::Of(pugi::xml_attribute attribute)
{
    // The default namespace does not reach attributes.
    const std::string_view name = attribute.name();
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos)
        return {{}, name};
    const std::string_view* const uri = bindings.Find(name.substr(0, colon));
    return {uri == nullptr ? std::string_view() : *uri, name.substr(colon + 1)};
}

std::string_view XmlNames::Attribute(pugi::xml_node element, XmlName name)
{
    for (pugi::xml_attribute attribute = element.first_attribute(); attribute;
         attribute = attribute.next_attribute())
    {
        // Comparing the end of the spelling first spares most attributes their namespace.
        if (std::string_view(attribute.name()).ends_with(name.local) && Of(attribute) == name)
            return attribute.value();
    }
    return {};
}

void XmlNames::KeepIfWanted(pugi::xml_attribute attribute, std::span<const XmlName> wanted,
                            std::span<std::string_view> values)
{
    const std::string_view spelling = attribute.name();
    const std::string_view local = spelling.substr(spelling.find(':') + 1);
    for (std::size_t place = 0; place < wanted.size(); ++place)
    {
        if (wanted[place].local == local && Of(attribute) == wanted[place])
            values[place] = attribute.value();
    }
}

bool XmlNames::HasAttribute(pugi::xml_node element, XmlName name)
{
    const auto attributes = element.attributes();
    return std::any_of(attributes.begin(), attributes.end(),
                       [&](pugi::xml_attribute attribute) { return Of(attribute) == name; });
}

} // namespace ReferenceHost
