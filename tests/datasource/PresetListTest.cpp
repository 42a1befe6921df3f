// The presets that a panel lists, which of them is selected, and deleting it.

#include "tests/datasource/support/PresetsTest.h"
#include "tests/datasource/support/ShownTexts.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

class PresetList : public PresetsTest
{
};

TEST_F(PresetList, HoldsThePresetsOfTheCategoryInTheirOrder)
{
    Keep(L"b");
    Keep(L"a");

    EXPECT_THAT(ListedTexts(), ElementsAre(L"a", L"b"));
    EXPECT_THAT(log.LinesOf({"source.", "manager."}),
                ElementsAre("manager.GetPresetFolder(FillPresets)",
                            "source.FillPresetItems([0: a, 1: b], FillPresets)"));
}

TEST_F(PresetList, IsFilledOnceAndSharedByAllPanels)
{
    Keep(L"a");
    static_cast<void>(panel.GetPresetList());
    log.Clear();
    RecordingPanel other(log, "other");
    other.presetCategory = L"FillPresets";

    EXPECT_EQ(other.GetPresetList().GetCount(), 1U);
    EXPECT_THAT(log.LinesOf({"source.", "manager."}), IsEmpty());
}

TEST_F(PresetList, IsLookedForAgainWhileItIsEmpty)
{
    static_cast<void>(panel.GetPresetList());
    Keep(L"a");

    EXPECT_THAT(ListedTexts(), ElementsAre(L"a"));
}

TEST_F(PresetList, IsACopy)
{
    Keep(L"a");
    WCmnUI_List list = panel.GetPresetList();

    list.RemoveItem(0);

    EXPECT_THAT(ListedTexts(), ElementsAre(L"a"));
}

TEST_F(PresetList, IsEmptyInAPanelWithoutPresets)
{
    Keep(L"a");
    panel.presetCategory = {};

    EXPECT_THAT(ListedTexts(), IsEmpty());
    EXPECT_THAT(log.LinesOf({"context.", "manager."}), IsEmpty());
}

TEST_F(PresetList, IsWhatIsCachedWithoutAStyleSource)
{
    Keep(L"a");
    app.source = nullptr;

    EXPECT_THAT(ListedTexts(), IsEmpty());
    app.source = &source;
    EXPECT_THAT(ListedTexts(), ElementsAre(L"a"));
    app.source = nullptr;
    EXPECT_THAT(ListedTexts(), ElementsAre(L"a"));
}

TEST_F(PresetList, IsEmptyWithoutTheDialogsDataSource)
{
    Keep(L"a");
    context.dataSources.clear();

    EXPECT_THAT(ListedTexts(), IsEmpty());
}

TEST_F(PresetList, IsEmptyWhenAnotherClassStandsUnderTheDialogsKey)
{
    Keep(L"a");
    context.dataSources[L"StylePresets"] = &panel;

    EXPECT_THAT(ListedTexts(), IsEmpty());
}

TEST_F(PresetList, IsAnnouncedByThePanelsThatHeardOfAChange)
{
    panel.OnPresetsListUpdated();

    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify PresetList"));
}

class CurrentPreset : public PresetsTest
{
};

TEST_F(CurrentPreset, IsNoneWhenItIsFirstAskedFor)
{
    const auto item = panel.Read<WCmnUI_ListItem>(L"CurrentPreset");

    EXPECT_EQ(item.GetText(), ShownTexts::Of(ShownTexts::kNoPreset));
    EXPECT_EQ(item.GetIndex(), -1);
}

TEST_F(CurrentPreset, HasNoTextInAPanelWithoutPresets)
{
    panel.presetCategory = {};

    EXPECT_EQ(panel.GetCurrentPreset(), WCmnUI_ListItem());
}

TEST_F(CurrentPreset, IsAppliedToTheObjectsInTheOrderOfTheirStyles)
{
    Keep(L"a");
    Style pair[2];
    panel.SetObjectStyles({{&pair[1], 7}, {&pair[0], 9}});
    const WCmnUI_ListItem item = ItemOf(L"a");
    log.Clear();

    panel.Write<WCmnUI_ListItem>(L"CurrentPreset", item);

    EXPECT_THAT(log.LinesOf({"source.", "notify"}),
                ElementsAre("source.ApplyPresetToObjects(a, FillPresets, [9, 7])", "notify CurrentPreset",
                            "notify DeletePresetEnabled"));
    EXPECT_EQ(panel.GetCurrentPreset(), item);
}

TEST_F(CurrentPreset, IsAppliedToTheTargetsWhenTheyAreDefaultStyles)
{
    Keep(L"a");
    Target(panel, {&styles.WithFill("first"), &styles.WithFill("second")}, /*isDefault=*/true);
    const WCmnUI_ListItem item = ItemOf(L"a");
    log.Clear();

    panel.SetCurrentPreset(item);

    EXPECT_THAT(log.LinesOf({"source.Apply"}),
                ElementsAre("source.ApplyPresetToStyles(a, FillPresets, [first, second])"));
}

TEST_F(CurrentPreset, AppliesNothingButNotifiesWhenItIsNone)
{
    panel.SetCurrentPreset(WCmnUI_ListItem());

    EXPECT_THAT(log.LinesOf({"source.", "notify"}),
                ElementsAre("notify CurrentPreset", "notify DeletePresetEnabled"));
}

TEST_F(CurrentPreset, IsOnlyStoredWithoutAStyleSource)
{
    Keep(L"a");
    const WCmnUI_ListItem item = ItemOf(L"a");
    app.source = nullptr;
    log.Clear();

    panel.SetCurrentPreset(item);

    EXPECT_EQ(panel.GetCurrentPreset(), item);
    EXPECT_THAT(log.LinesOf({"source.", "notify"}),
                ElementsAre("notify CurrentPreset", "notify DeletePresetEnabled"));
}

TEST_F(CurrentPreset, IsAppliedAlsoWithoutAPresetCategory)
{
    panel.presetCategory = {};
    WCmnUI_ListItem item;
    item.SetText(L"a");
    item.SetIndex(0);

    panel.SetCurrentPreset(item);

    EXPECT_THAT(log.LinesOf({"source.Apply"}), ElementsAre("source.ApplyPresetToObjects(a, , [])"));
}

class DeletingAPreset : public PresetsTest
{
protected:
    void Select(const wchar_t* text)
    {
        panel.SetCurrentPreset(ItemOf(text));
        log.Clear();
    }
};

TEST_F(DeletingAPreset, IsEnabledWhileOneIsSelected)
{
    Keep(L"a");
    EXPECT_EQ(panel.Read<int>(L"DeletePresetEnabled"), 0);

    Select(L"a");

    EXPECT_EQ(panel.Read<int>(L"DeletePresetEnabled"), 1);
}

TEST_F(DeletingAPreset, RemovesItFromStoreAndListAndSelectsNone)
{
    Keep(L"a");
    Keep(L"b");
    Select(L"a");

    panel.Invoke(L"OnDeletePreset");

    EXPECT_THAT(ListedTexts(), ElementsAre(L"b"));
    EXPECT_THAT(manager.GetPresetNames(L"FillPresets"), ElementsAre(L"b"));
    EXPECT_EQ(panel.GetCurrentPreset().GetIndex(), -1);
}

TEST_F(DeletingAPreset, TellsThoseWhoListenForTheCategoryBeforeItsOwnListeners)
{
    Keep(L"a");
    Select(L"a");
    ListenToPresets({L"FillPresets"});

    panel.OnDeletePreset();

    EXPECT_THAT(log.LinesOf({"presets", "notify"}),
                ElementsAre("presets FillPresets", "notify CurrentPreset", "notify DeletePresetEnabled"));
}

TEST_F(DeletingAPreset, AsksNobody)
{
    Keep(L"a");
    Select(L"a");

    panel.OnDeletePreset();

    EXPECT_THAT(log.LinesOf({"confirm", "dialogs"}), IsEmpty());
}

TEST_F(DeletingAPreset, RemovesItFromTheMiddleOfTheList)
{
    Keep(L"a");
    Keep(L"b");
    Keep(L"c");
    Select(L"b");

    panel.OnDeletePreset();

    EXPECT_THAT(ListedTexts(), ElementsAre(L"a", L"c"));
}

TEST_F(DeletingAPreset, RemovesOnlyTheFirstItemOfThatText)
{
    Keep(L"a");
    Keep(L"b");
    Keep(L"c");
    source.presetText = L"same";
    Select(L"same");
    log.Clear();

    panel.OnDeletePreset();

    EXPECT_THAT(ListedTexts(), ElementsAre(L"same", L"same"));
}

TEST_F(DeletingAPreset, OnlySelectsNoneAndNotifiesWhileNoneIsSelected)
{
    Keep(L"a");

    panel.OnDeletePreset();

    EXPECT_THAT(manager.GetPresetNames(L"FillPresets"), ElementsAre(L"a"));
    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify CurrentPreset", "notify DeletePresetEnabled"));
}

TEST_F(DeletingAPreset, LeavesTheListAloneWithoutTheDialogsDataSource)
{
    Keep(L"a");
    Select(L"a");
    context.dataSources.clear();

    panel.OnDeletePreset();

    EXPECT_THAT(manager.GetPresetNames(L"FillPresets"), IsEmpty());
    EXPECT_EQ(panel.GetCurrentPreset().GetIndex(), -1);
}

} // namespace
