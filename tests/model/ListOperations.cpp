// The list of styles and its dialog.

#include "tests/model/Answers.h"
#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

namespace LibraryModel
{

namespace
{

Operation OpenList(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Read(\"StyleResourceList\");",
        [=](LibraryWorld& world)
        {
            world.heldLists[panel] = world.Panel(panel).Read<WXmlNode>(L"StyleResourceList");
            return TextOf(world.heldLists[panel]);
        },
        [=](PlainWorld& world)
        {
            world.heldLists[panel] = world.panels[panel]->GetStyleResourceList();
            return world.heldLists[panel].Text();
        });
}

Operation OpenMoreStyles(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Read(\"NewStyleList\");",
        [=](LibraryWorld& world)
        {
            world.heldLists[panel] = world.Panel(panel).Read<WXmlNode>(L"NewStyleList");
            return TextOf(world.heldLists[panel]);
        },
        [=](PlainWorld& world)
        {
            world.heldLists[panel] = world.panels[panel]->GetNewStyleList();
            return world.heldLists[panel].Text();
        });
}

Operation PickById(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    static const std::vector<unsigned> ids = {0,  0,  1,  2,  3,  4,  8,  9,          9,
                                              10, 10, 11, 12, 18, 19, 20, 0xffffffffU};
    const unsigned id = dice.One(ids);
    return Do(
        PanelText(panel) + "Write(\"ApplyStyleResource\", " + std::to_string(id) + "u);",
        [=](LibraryWorld& world) { world.Panel(panel).Write<unsigned>(L"ApplyStyleResource", id); },
        [=](PlainWorld& world) { world.panels[panel]->SetApplyStyleResource(id); });
}

/// An entry of the list that this or another panel gave last; the list itself, or nothing, when it has none.
Operation ChooseItem(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::size_t giver = dice.Percent(85) ? panel : AnyPanel(dice);
    const std::size_t entry = dice.Below(14);
    return Do(
        PanelText(panel) + "Write(\"CurrentListStyleItem\", entry " + std::to_string(entry) +
            " of the list of panels[" + std::to_string(giver) + "]);",
        [=](LibraryWorld& world)
        {
            const WXmlNode& list = world.heldLists[giver];
            const std::vector<WXmlNode> entries = list.GetChildren();
            world.Panel(panel).Write<WXmlNode>(L"CurrentListStyleItem",
                                               entry < entries.size() ? entries[entry] : list);
        },
        [=](PlainWorld& world)
        {
            const PlainNode& list = world.heldLists[giver];
            const bool isThere = list.tree != nullptr && entry < list.tree->entries.size();
            world.panels[panel]->SetCurrentListStyleItem(
                isThere ? PlainNode{list.tree, static_cast<int>(entry)} : list);
        });
}

Operation ChooseNothing(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Write(\"CurrentListStyleItem\", WXmlNode());",
        [=](LibraryWorld& world) { world.Panel(panel).Write<WXmlNode>(L"CurrentListStyleItem", WXmlNode()); },
        [=](PlainWorld& world) { world.panels[panel]->SetCurrentListStyleItem(PlainNode()); });
}

Operation AcceptItem(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnBaseStylePropertiesDatasourceOk\");",
        [=](LibraryWorld& world) { world.Panel(panel).Invoke(L"OnBaseStylePropertiesDatasourceOk"); },
        [=](PlainWorld& world) { world.panels[panel]->OnBaseStylePropertiesDatasourceOk(); });
}

/// The user interface lets go of a list that it was given.
Operation ForgetList(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        "heldLists[" + std::to_string(panel) + "] = WXmlNode();",
        [=](LibraryWorld& world) { world.heldLists[panel] = WXmlNode(); },
        [=](PlainWorld& world) { world.heldLists[panel] = PlainNode(); });
}

} // namespace

const Makers& ListMakers()
{
    static const Makers makers = {{5, OpenList},      {3, OpenMoreStyles}, {8, PickById},  {4, ChooseItem},
                                  {1, ChooseNothing}, {4, AcceptItem},     {1, ForgetList}};
    return makers;
}

} // namespace LibraryModel
