#pragma once

#include "reference_host/document/NamespaceBindings.h"

#include <pugixml.hpp>

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace ReferenceHost
{

/// A name of XML with its namespace resolved; without one the URI is empty. Borrows both texts.
struct XmlName
{
    std::string_view uri;
    std::string_view local;

    /// The local names first: they differ more often, and are shorter.
    friend bool operator==(const XmlName& left, const XmlName& right)
    {
        return left.local == right.local && left.uri == right.uri;
    }
};

/// Resolves the names of a tree while it is walked.
///
/// Whoever goes into an element holds a Scope for it, and lets it go after its attributes and children were
/// read.
class XmlNames
{
public:
    /// Keeps the declarations of one element in force.
    class Scope
    {
    public:
        Scope(XmlNames& owner, pugi::xml_node element);
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope();

    private:
        XmlNames& names;
        std::size_t mark;
    };

    /// The name of an element whose own Scope is in force.
    [[nodiscard]] XmlName Of(pugi::xml_node element);

    /// The name of an attribute of the element whose Scope is in force.
    [[nodiscard]] XmlName Of(pugi::xml_attribute attribute);

    /// The value of an attribute of the element whose Scope is in force; empty without it.
    [[nodiscard]] std::string_view Attribute(pugi::xml_node element, XmlName name);

    /// The values of several attributes of the element whose Scope is in force, in one pass over what it has;
    /// null without it, which is not the same as empty here.
    template <std::size_t count>
    [[nodiscard]] std::array<std::string_view, count> Attributes(pugi::xml_node element,
                                                                 const std::array<XmlName, count>& wanted)
    {
        std::array<std::string_view, count> values;
        for (pugi::xml_attribute attribute = element.first_attribute(); attribute;
             attribute = attribute.next_attribute())
            KeepIfWanted(attribute, wanted, values);
        return values;
    }

    /// Tells whether the element whose Scope is in force has an attribute, also an empty one.
    [[nodiscard]] bool HasAttribute(pugi::xml_node element, XmlName name);

    /// Tells whether any prefix stands for a namespace here; without one there are no names of it.
    [[nodiscard]] bool IsInForce(std::string_view uri) const { return bindings.IsInForce(uri); }

private:
    void KeepIfWanted(pugi::xml_attribute attribute, std::span<const XmlName> wanted,
                      std::span<std::string_view> values);

    NamespaceBindings bindings;
};

/// Calls `visit` for each child element of `parent` that is called `name`, while its scope is in force.
template <class Visitor>
void ForEachChild(pugi::xml_node parent, XmlNames& names, const XmlName& name, const Visitor& visit)
{
    for (const pugi::xml_node child : parent.children())
    {
        const XmlNames::Scope scope(names, child);
        if (names.Of(child) == name)
            visit(child);
    }
}

} // namespace ReferenceHost
