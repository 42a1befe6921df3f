#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/ui_list/WCmnUI_Guid.h"
#include "host/ui_list/WCmnUI_List.h"
#include "host/ui_list/WCmnUI_ListItem.h"

#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(ListItemsTest);

// The lists of presets that panels show.
namespace HostTests
{

namespace
{

WCmnUI_ListItem Item(const wchar_t* text)
{
    WCmnUI_ListItem item;
    item.SetText(text);
    return item;
}

class UiList : public testing::Test
{
protected:
    UiList()
    {
        for (const wchar_t* const text : {L"a", L"b", L"c"})
            list.AddItem()->SetText(text);
    }

    /// The texts in order, each with its index.
    [[nodiscard]] static std::wstring Shown(const WCmnUI_List& shown)
    {
        std::wstring all;
        for (std::size_t position = 0; position < shown.GetCount(); ++position)
            all += shown.GetItem(position)->GetText().Wide() +
                   std::to_wstring(shown.GetItem(position)->GetIndex()) + L" ";
        return all;
    }

    WCmnUI_List list;
};

} // namespace

TEST(UiListItem, HasNoTextAndNoPlaceAtFirst)
{
    EXPECT_EQ(WCmnUI_ListItem().GetText(), L"");
    EXPECT_EQ(WCmnUI_ListItem().GetIndex(), -1);
    EXPECT_EQ(WCmnUI_ListItem(), WCmnUI_ListItem());
}

TEST(UiListItem, EqualsAnotherOfTheSameTextAndPlace)
{
    WCmnUI_ListItem moved = Item(L"a");
    moved.SetIndex(2);

    EXPECT_EQ(Item(L"a"), Item(L"a"));
    EXPECT_FALSE(Item(L"a") == Item(L"b"));
    EXPECT_FALSE(Item(L"a") == moved);
}

TEST(UiListItem, KeepsItsPictureAndEqualsAnotherWhateverItIs)
{
    WCmnUI_List list;
    list.AddItem()->SetPicture(OvxUtils::Any(OvxStringT(L"picture")));
    const WCmnUI_List copy = list;

    WCmnUI_ListItem plain;
    plain.SetIndex(0);

    EXPECT_EQ(copy.GetItem(0)->GetPicture(), OvxUtils::Any(OvxStringT(L"picture")));
    EXPECT_EQ(*copy.GetItem(0), plain);
}

TEST(UiGuid, EqualsAnotherOfTheSameText)
{
    EXPECT_EQ(WCmnUI_Guid(L"State.ObjectStyles"), WCmnUI_Guid(L"State.ObjectStyles"));
    EXPECT_FALSE(WCmnUI_Guid(L"State.ObjectStyles") == WCmnUI_Guid());
    EXPECT_EQ(WCmnUI_Guid(L"any text").GetText(), L"any text");
}

TEST_F(UiList, HasItsItemsInOrderWithTheirPlaces)
{
    EXPECT_EQ(Shown(list), L"a0 b1 c2 ");
    EXPECT_EQ(list.GetItem(3), nullptr);
    EXPECT_EQ(WCmnUI_List().GetCount(), 0U);
}

TEST_F(UiList, MovesPlacesWhenAnItemIsInserted)
{
    const WCmnUI_ListItem* const inserted = list.InsertItem(1, Item(L"x"));

    EXPECT_EQ(Shown(list), L"a0 x1 b2 c3 ");
    EXPECT_EQ(inserted, list.GetItem(1));
}

TEST_F(UiList, InsertsAtItsEndWhatIsInsertedBehindIt)
{
    list.InsertItem(99, Item(L"x"));

    EXPECT_EQ(Shown(list), L"a0 b1 c2 x3 ");
}

TEST_F(UiList, MovesPlacesWhenAnItemIsRemoved)
{
    list.RemoveItem(0);
    list.RemoveItem(99);

    EXPECT_EQ(Shown(list), L"b0 c1 ");
}

TEST_F(UiList, KeepsTheAddressesOfItsItemsWhileOthersComeAndGo)
{
    WCmnUI_ListItem* const second = list.GetItem(1);

    for (int i = 0; i < 100; ++i)
        list.AddItem();
    list.InsertItem(0, Item(L"x"));
    list.RemoveItem(1);

    EXPECT_EQ(list.GetItem(1), second);
    EXPECT_EQ(second->GetText(), L"b");
}

TEST_F(UiList, GivesCopiesItemsOfTheirOwn)
{
    WCmnUI_List copy = list;
    WCmnUI_List assigned;
    assigned = list;

    copy.GetItem(0)->SetText(L"x");
    list.RemoveItem(2);

    EXPECT_EQ(Shown(list), L"a0 b1 ");
    EXPECT_EQ(Shown(copy), L"x0 b1 c2 ");
    EXPECT_EQ(Shown(assigned), L"a0 b1 c2 ");
}

TEST_F(UiList, EqualsAnotherWithTheSameItems)
{
    WCmnUI_List copy = list;
    EXPECT_EQ(copy, list);

    copy.GetItem(2)->SetText(L"x");
    EXPECT_FALSE(copy == list);
}

TEST_F(UiList, MovesWithItsItems)
{
    const WCmnUI_ListItem* const first = list.GetItem(0);

    const WCmnUI_List moved = std::move(list);

    EXPECT_EQ(moved.GetItem(0), first);
    EXPECT_EQ(moved.GetCount(), 3U);
}

} // namespace HostTests
