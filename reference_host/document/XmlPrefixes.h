#pragma once

#include "reference_host/document/XmlNames.h"

#include <pugixml.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// The namespace that `prefix` stands for inside `element`; empty when it is not bound there.
[[nodiscard]] std::string_view ResolvePrefix(pugi::xml_node element, std::string_view prefix);

/// The attribute of an element with that namespace and local name; null without it.
[[nodiscard]] pugi::xml_attribute FindXmlAttribute(pugi::xml_node element, std::string_view uri,
                                                   std::string_view local);

/// The namespace and local name of an element.
[[nodiscard]] XmlName ResolveElement(pugi::xml_node element);

/// Tells whether a node is an element of that name.
[[nodiscard]] bool IsXmlElement(pugi::xml_node node, const XmlName& name);

/// Finds prefixes for the names of one new or changed start tag, and gathers the declarations that the tag
/// needs for those that are not bound where it stands.
class XmlPrefixes
{
public:
    /// `scope` is the element whose declarations are in force: the changed one itself, or the one around a
    /// new one.
    explicit XmlPrefixes(pugi::xml_node scopeElement);

    /// The name with a prefix for its namespace.
    [[nodiscard]] std::string Qualify(std::string_view uri, std::string_view local);

    /// The declarations that Qualify() asked for: the prefixes and their namespaces. Their URIs are borrowed.
    struct Declaration
    {
        std::string prefix;
        std::string_view uri;
    };

    [[nodiscard]] const std::vector<Declaration>& GetDeclarations() const noexcept { return declarations; }

private:
    [[nodiscard]] std::string FindBound(std::string_view uri) const;
    [[nodiscard]] bool IsTaken(std::string_view prefix) const;

    pugi::xml_node scope;
    std::vector<Declaration> declarations;
};

} // namespace ReferenceHost
