#pragma once

#include <pugixml.hpp>

namespace ReferenceHost
{

/// The tree behind the handles of one list: shared by them, gone with the last one.
struct XmlNodeTree
{
    XmlNodeTree();
    XmlNodeTree(const XmlNodeTree&) = delete;
    XmlNodeTree& operator=(const XmlNodeTree&) = delete;
    ~XmlNodeTree();

    pugi::xml_document document;
};

/// The element behind the untyped pointer of a handle.
[[nodiscard]] inline pugi::xml_node ElementOf(void* element)
{
    return pugi::xml_node(static_cast<pugi::xml_node_struct*>(element));
}

} // namespace ReferenceHost
