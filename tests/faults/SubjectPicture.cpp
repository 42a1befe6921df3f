// What is seen of a subject of failures: all that tells a panel from another one.

#include "host/data_binding/IAppEventBroadcaster.h"
#include "tests/datasource/support/Description.h"
#include "tests/datasource/support/StyleListTest.h"
#include "tests/faults/FaultSubject.h"

#include <typeinfo>

using namespace Styles;
using OvxUtils::Any;

namespace
{

struct ListText : StyleListTest
{
    using StyleListTest::ToText;
};

std::string DescribeItem(const WCmnUI_ListItem& item)
{
    return Describe(item.GetText()) + "#" + std::to_string(item.GetIndex());
}

std::string DescribeList(const WCmnUI_List& list)
{
    std::string items = "[ ";
    for (std::size_t position = 0; position < list.GetCount(); ++position)
        items += DescribeItem(*list.GetItem(position)) + " ";
    return items + "]";
}

std::string DescribeValue(const Any& value)
{
    if (const auto* number = value.TryGet<unsigned>())
        return std::to_string(*number);
    if (const auto* flag = value.TryGet<bool>())
        return DescribeFlag(*flag);
    if (const auto* identifier = value.TryGet<WCmnUI_Guid>())
        return Describe(identifier->GetText());
    if (const auto* item = value.TryGet<WCmnUI_ListItem>())
        return DescribeItem(*item);
    const auto* list = value.TryGet<WCmnUI_List>();
    return list == nullptr ? Describe(value) : DescribeList(*list);
}

std::string ReadAsText(const IReflectable& object, const OvxStringT& name)
{
    try
    {
        return DescribeValue(object.ReadAny(name));
    }
    catch (const std::bad_cast&)
    {
        return "bad cast";
    }
}

/// Every value by its name, but the lists of styles, which change what is picked from.
std::string DescribeNames(const IReflectable& object)
{
    std::string values;
    for (const OvxStringT& name : object.GetNames())
    {
        const bool isStyleList = name == L"StyleResourceList" || name == L"NewStyleList";
        if (object.HasProperty(name) && !isStyleList)
            values += Describe(name) + ": " + ReadAsText(object, name) + "\n";
    }
    return values;
}

std::string DescribeTargets(const OpenPanel& panel)
{
    std::string targets = "forced: " + Describe(panel.GetAmbiguousForce()) +
                          ", default: " + DescribeFlag(panel.AreTargetsDefaultStyles()) +
                          ", siblings: " + std::to_string(panel.siblings.size()) + "\n";
    for (Style* target : panel.GetTargetStyles())
    {
        targets += "target " + Describe(target) + " of object " +
                   std::to_string(reinterpret_cast<std::uintptr_t>(panel.GetObjectFromStyle(target))) + "\n";
    }
    return targets;
}

/// Looks at both lists as they are and picks from each.
std::string DescribeLists(OpenPanel& panel)
{
    for (const unsigned id : {1U, 2U, 10U})
        panel.SetApplyStyleResource(id);
    std::string lists = ListText::ToText(panel.GetNewStyleList()) + "\n";
    for (const unsigned id : {2U, 12U})
        panel.SetApplyStyleResource(id);
    lists += ListText::ToText(panel.GetStyleResourceList()) + "\n";
    panel.SetApplyStyleResource(2U);
    return lists;
}

} // namespace

std::string FaultSubject::Picture()
{
    static_cast<void>(calls.TakeNotes());
    std::string seen = "open groups: " + std::to_string(calls.openGroups) + "\n";
    seen += DescribeNames(panel) + DescribeTargets(panel);
    panel.WriteTarget(Key(L"written"), Any(7), nullptr, nullptr);
    seen += DescribeLists(panel);

    const int groups = calls.openGroups;
    panel.EndGroupModify(true);
    calls.openGroups = groups;
    for (const Style* style : {&base, &first, &second, &defaults, &moreDefaults})
        seen += Describe(style) + "\n";
    if (presets != nullptr)
    {
        seen += DescribeNames(Dialog());
        for (const OvxStringT& name : app.presetManager.GetPresetNames(L"FillPresets"))
            seen += "kept: " + Describe(name) + "\n";
    }
    seen += std::to_string(OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance().DeliverPending()) +
            " events\n";
    return seen + calls.TakeNotes();
}
