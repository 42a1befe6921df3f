#include "tests/datasource/support/StyleListTest.h"

#include <algorithm>

StyleListTest::StyleListTest()
{
    log.SetName(&context, "context");
    context.dialogs = &dialogs;
    panel.SetDataSourceProvider(&context);
    log.Clear();
}

OvxStringT StyleListTest::Numbered(int number)
{
    return OvxStringT::Format(L"S%d", number);
}

void StyleListTest::NameFills(int count)
{
    for (int added = 0; added < count; ++added)
    {
        const OvxStringT name = Numbered(static_cast<int>(fills.size()) + 1);
        fills.push_back(&styles.OfCategory(Describe(name), Styles::FillStyleCategoryName));
        NameInSheet(name.c_str(), *fills.back());
    }
}

Styles::Style& StyleListTest::ObjectWithFill(Styles::Style* parent)
{
    Styles::Style& object = styles.WithFill("object");
    FillOf(object).SetParent(parent);
    return object;
}

WXmlNode StyleListTest::AnyItem()
{
    WXmlNode item = document.CreateNode(L"itemData");
    item.Attribute(L"@styleName").SetString(L"unknown");
    return item;
}

std::vector<OvxStringT> StyleListTest::Column(const WXmlNode& list, const wchar_t* address)
{
    const OvxStringT name = OvxStringT(address + 1);
    std::vector<OvxStringT> column;
    for (const WXmlNode& item : list.GetChildren())
    {
        const std::vector<OvxStringT> names = item.GetAttributeNames();
        if (std::find(names.begin(), names.end(), name) != names.end())
            column.push_back(item.Attribute(address).GetString());
    }
    return column;
}

OvxStringT StyleListTest::AttributeOf(const WXmlNode& list, std::size_t item, const wchar_t* address)
{
    return list.GetChildren().at(item).Attribute(address).GetString();
}

std::string StyleListTest::ToText(const WXmlNode& node)
{
    std::string text = "<" + Describe(node.GetName());
    for (const OvxStringT& name : node.GetAttributeNames())
        text += " " + Describe(name) + "='" + Describe(node.Attribute(L"@" + name).GetString()) + "'";
    text += ">";
    for (const WXmlNode& child : node.GetChildren())
        text += ToText(child);
    return text;
}
