#include "host/ui_list/WCmnUI_List.h"

#include "host/ui_list/WCmnUI_Guid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using ::testing::ElementsAre;

namespace
{

WCmnUI_ListItem Item(const OvxStringT& text)
{
    WCmnUI_ListItem item;
    item.SetText(text);
    return item;
}

WCmnUI_List ListOf(const std::vector<OvxStringT>& texts)
{
    WCmnUI_List list;
    for (const OvxStringT& text : texts)
        list.AddItem()->SetText(text);
    return list;
}

/// The items as "index text", in order.
std::vector<std::wstring> ItemsOf(const WCmnUI_List& list)
{
    std::vector<std::wstring> items;
    for (std::size_t i = 0; i < list.GetCount(); ++i)
        items.push_back(std::to_wstring(list.GetItem(i)->GetIndex()) + L" " +
                        list.GetItem(i)->GetText().Wide());
    return items;
}

} // namespace

TEST(ListItem, IsEmptyAndWithoutAPositionAtFirst)
{
    const WCmnUI_ListItem item;

    EXPECT_TRUE(item.GetText().empty());
    EXPECT_EQ(item.GetIndex(), -1);
}

TEST(ListItem, ComparesByTextAndIndex)
{
    WCmnUI_ListItem moved = Item(L"Red");
    moved.SetIndex(3);

    EXPECT_EQ(Item(L"Red"), Item(L"Red"));
    EXPECT_NE(Item(L"Red"), Item(L"Blue"));
    EXPECT_NE(Item(L"Red"), moved);
}

TEST(List, GivesItemsTheIndicesOfTheirPositions)
{
    const WCmnUI_List list = ListOf({L"Red", L"Green"});

    EXPECT_THAT(ItemsOf(list), ElementsAre(L"0 Red", L"1 Green"));
}

TEST(List, MovesTheIndicesWhenAnItemIsInserted)
{
    WCmnUI_List list = ListOf({L"Red", L"Green"});
    WCmnUI_ListItem inserted = Item(L"Blue");
    inserted.SetIndex(77);

    const WCmnUI_ListItem* added = list.InsertItem(1, inserted);

    EXPECT_THAT(ItemsOf(list), ElementsAre(L"0 Red", L"1 Blue", L"2 Green"));
    EXPECT_EQ(added, list.GetItem(1));
}

TEST(List, InsertsAtTheEndBeyondIt)
{
    WCmnUI_List list = ListOf({L"Red"});

    list.InsertItem(100, Item(L"Blue"));

    EXPECT_THAT(ItemsOf(list), ElementsAre(L"0 Red", L"1 Blue"));
}

TEST(List, MovesTheIndicesWhenAnItemIsRemoved)
{
    WCmnUI_List list = ListOf({L"Red", L"Green", L"Blue"});

    list.RemoveItem(0);

    EXPECT_THAT(ItemsOf(list), ElementsAre(L"0 Green", L"1 Blue"));
}

TEST(List, RemovesNothingBeyondItsEnd)
{
    WCmnUI_List list = ListOf({L"Red"});

    list.RemoveItem(1);

    EXPECT_THAT(ItemsOf(list), ElementsAre(L"0 Red"));
}

TEST(List, HasNoItemBeyondItsEnd)
{
    WCmnUI_List list = ListOf({L"Red"});

    EXPECT_EQ(list.GetItem(1), nullptr);
    EXPECT_EQ(std::as_const(list).GetItem(1), nullptr);
}

TEST(List, KeepsTheAddressesOfItsItemsWhileOthersComeAndGo)
{
    WCmnUI_List list = ListOf({L"Red", L"Green"});
    const WCmnUI_ListItem* green = list.GetItem(1);

    for (int i = 0; i < 1000; ++i)
        list.InsertItem(0, Item(L"more"));
    list.RemoveItem(0);

    EXPECT_EQ(list.GetItem(1000), green);
    EXPECT_EQ(green->GetText(), OvxStringT(L"Green"));
    EXPECT_EQ(green->GetIndex(), 1000);
}

TEST(List, CopiesItsItems)
{
    WCmnUI_List original = ListOf({L"Red", L"Green"});
    WCmnUI_List copy = original;
    WCmnUI_List assigned;
    assigned = original;

    original.GetItem(0)->SetText(L"changed");

    EXPECT_THAT(ItemsOf(copy), ElementsAre(L"0 Red", L"1 Green"));
    EXPECT_THAT(ItemsOf(assigned), ElementsAre(L"0 Red", L"1 Green"));
}

TEST(List, KeepsItsItemsWhenItIsAssignedToItself)
{
    WCmnUI_List list = ListOf({L"Red"});
    const WCmnUI_List& same = list;

    list = same;

    EXPECT_THAT(ItemsOf(list), ElementsAre(L"0 Red"));
}

TEST(List, ComparesItemByItem)
{
    EXPECT_EQ(ListOf({L"Red", L"Green"}), ListOf({L"Red", L"Green"}));
    EXPECT_FALSE(ListOf({L"Red"}) == ListOf({L"Red", L"Green"}));
    EXPECT_FALSE(ListOf({L"Red"}) == ListOf({L"Green"}));
}

TEST(UiGuid, ComparesByItsText)
{
    EXPECT_EQ(WCmnUI_Guid(L"State.ObjectStyles"), WCmnUI_Guid(L"State.ObjectStyles"));
    EXPECT_NE(WCmnUI_Guid(L"State.ObjectStyles"), WCmnUI_Guid(L"State.ObjectProperties"));
    EXPECT_EQ(WCmnUI_Guid(L"State.ObjectStyles").GetText(), OvxStringT(L"State.ObjectStyles"));
    EXPECT_TRUE(WCmnUI_Guid().GetText().empty());
}
