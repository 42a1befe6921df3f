#include "host/xml/WXmlDoc.h"

#include "host/utils/Utf8.h"
#include "reference_host/xml/XmlNodeTree.h"

#include <memory>
#include <new>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace
{

using ReferenceHost::XmlNodeTree;

/// Tells whether the top level holds one element and no text, which the parser does not ask for.
bool HasOneRootOnly(const pugi::xml_document& document)
{
    int elements = 0;
    for (const pugi::xml_node& node : document.children())
    {
        const pugi::xml_node_type type = node.type();
        if (type == pugi::node_pcdata || type == pugi::node_cdata)
            return false;
        elements += type == pugi::node_element ? 1 : 0;
    }
    return elements == 1;
}

/// Finds elements that have an attribute twice, which the parser lets pass.
class DuplicateFinder : public pugi::xml_tree_walker
{
public:
    bool for_each(pugi::xml_node& node) override
    {
        std::set<std::string_view> names;
        for (const pugi::xml_attribute& attribute : node.attributes())
        {
            if (!names.insert(attribute.name()).second)
                return false;
        }
        return true;
    }
};

/// The element that `text` holds; null when it is malformed.
pugi::xml_node Parse(pugi::xml_document& document, const std::string& text)
{
    const unsigned int options = pugi::parse_default | pugi::parse_fragment;
    const pugi::xml_parse_result result =
        document.load_buffer(text.data(), text.size(), options, pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    DuplicateFinder duplicates;
    if (!result || !HasOneRootOnly(document) || !document.traverse(duplicates))
        return {};
    return document.document_element();
}

} // namespace

bool WXmlDoc::Load(const OvxStringT& text)
{
    root = WXmlNode();
    auto tree = std::make_shared<XmlNodeTree>();
    const pugi::xml_node loaded = Parse(tree->document, OvxUtils::ToUtf8(text));
    if (!loaded)
        return false;
    root = WXmlNode(std::move(tree), loaded.internal_object());
    return true;
}

WXmlNode WXmlDoc::GetRoot() const
{
    return root;
}

WXmlNode WXmlDoc::CreateNode(const OvxStringT& name)
{
    if (name.empty())
        return {};
    auto tree = std::make_shared<XmlNodeTree>();
    const pugi::xml_node created = tree->document.append_child(OvxUtils::ToUtf8(name).c_str());
    if (!created)
        throw std::bad_alloc();
    return {std::move(tree), created.internal_object()};
}
