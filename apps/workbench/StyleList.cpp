#include "apps/workbench/StyleList.h"

#include <cstddef>

namespace Workbench
{
namespace
{

StyleListEntry ReadEntry(const WXmlNode& node)
{
    StyleListEntry entry;
    entry.id = static_cast<unsigned>(node.Attribute(L"@placeholderCommandID").GetInt());
    entry.text = node.Attribute(L"@text").GetString();
    entry.styleName = node.Attribute(L"@styleName").GetString();
    entry.isChecked = node.Attribute(L"@check").GetBool();
    entry.node = node;
    return entry;
}

/// The one entry that applies nothing by itself is the one that is not said to be enabled.
void MarkMore(StyleList& list)
{
    if (list.entries.empty() || list.entries.back().node.Attribute(L"@enable").GetBool())
        return;
    list.entries.back().leadsToDialog = true;
    list.hasMore = true;
}

/// The first of the further styles has the last id that is applied at once.
void MarkBeyondFirst(StyleList& list)
{
    for (std::size_t place = 1; place < list.entries.size(); ++place)
        list.entries[place].leadsToDialog = true;
}

} // namespace

StyleList ReadStyleList(const IReflectable& panel, StyleListPart part)
{
    const auto root =
        panel.Read<WXmlNode>(part == StyleListPart::Main ? L"StyleResourceList" : L"NewStyleList");
    StyleList list;
    list.part = part;
    for (const WXmlNode& node : root.GetChildren())
        list.entries.push_back(ReadEntry(node));
    if (part == StyleListPart::Main)
        MarkMore(list);
    else
        MarkBeyondFirst(list);
    return list;
}

OvxStringT EscapeForMenu(OvxStringT name)
{
    name.Replace(L"&", L"&&");
    return name;
}

} // namespace Workbench
