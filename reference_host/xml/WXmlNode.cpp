#include "host/xml/WXmlNode.h"

#include "host/utils/Utf8.h"
#include "reference_host/xml/XmlNodeTree.h"

#include <pugixml.hpp>

#include <new>

namespace
{

using ReferenceHost::ElementOf;

/// The first element in document order among what `expression` finds, which may also be attributes and texts.
pugi::xml_node FindElement(const pugi::xml_node& from, const char* expression)
{
    try
    {
        pugi::xpath_node_set found = from.select_nodes(expression);
        found.sort();
        for (const pugi::xpath_node& each : found)
        {
            if (each.node().type() == pugi::node_element)
                return each.node();
        }
        return {};
    }
    catch (const pugi::xpath_exception&)
    {
        // A malformed expression, or one that does not ask for nodes, finds nothing.
        return {};
    }
}

} // namespace

OvxStringT WXmlNode::GetName() const
{
    return OvxUtils::FromUtf8(ElementOf(element).name());
}

WXmlNode WXmlNode::CreateChild(const OvxStringT& name)
{
    if (!IsValid() || name.empty())
        return {};
    const pugi::xml_node child = ElementOf(element).append_child(OvxUtils::ToUtf8(name).c_str());
    if (!child)
        throw std::bad_alloc();
    return {tree, child.internal_object()};
}

WXmlValueAccessor WXmlNode::Attribute(const OvxStringT& address) const
{
    return {tree, element, address};
}

WXmlNode WXmlNode::GetNode(const WXPath& path) const
{
    if (!IsValid())
        return {};
    const pugi::xml_node found =
        FindElement(ElementOf(element), OvxUtils::ToUtf8(path.GetExpression()).c_str());
    if (!found)
        return {};
    return {tree, found.internal_object()};
}

std::vector<WXmlNode> WXmlNode::GetChildren() const
{
    std::vector<WXmlNode> children;
    for (const pugi::xml_node& child : ElementOf(element).children())
    {
        if (child.type() == pugi::node_element)
            children.push_back(WXmlNode(tree, child.internal_object()));
    }
    return children;
}

std::vector<OvxStringT> WXmlNode::GetAttributeNames() const
{
    std::vector<OvxStringT> names;
    for (const pugi::xml_attribute& attribute : ElementOf(element).attributes())
        names.push_back(OvxUtils::FromUtf8(attribute.name()));
    return names;
}
