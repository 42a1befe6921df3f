// Adding a preset: the panel opens the dialog, and the dialog's data source keeps what it was given.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/PresetsTest.h"
#include "tests/datasource/support/ShownTexts.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kShown = "dialogs.ShowDialog(0f6cfc84-8a1f-9182-4a02-21556f4ad8f8, context)";
constexpr const char* kClosed = "dialogs.CloseDialog(0f6cfc84-8a1f-9182-4a02-21556f4ad8f8, 2, 0)";

std::string Asked()
{
    return "confirm(" + Describe(ShownTexts::Of(ShownTexts::kReplacePreset)) + ", 36)";
}

class AddingAPreset : public PresetsTest
{
protected:
    /// Opens the dialog on an object whose fill has a colour.
    void Open()
    {
        Target(panel, {&styles.WithColor("object", 5)});
        panel.Invoke(L"OnAddPreset");
        log.Clear();
    }

    /// Opens the dialog and accepts it with a name.
    void Add(const wchar_t* name)
    {
        Open();
        Dialog().Write<OvxStringT>(L"AddPresetName", name);
        log.Clear();
        Dialog().Invoke(L"OnAddPresetOk");
    }
};

TEST_F(AddingAPreset, IsEnabledOnObjectsOfAPanelThatOffersPresets)
{
    Target(panel, {&styles.WithFill("object")});

    EXPECT_EQ(panel.Read<int>(L"AddPresetEnabled"), 1);
    panel.presetCategory = {};
    EXPECT_EQ(panel.Read<int>(L"AddPresetEnabled"), 0);
}

TEST_F(AddingAPreset, IsNotEnabledOnANamedStyle)
{
    Style& named = styles.WithFill("named");
    NameInSheet(L"Named", named);
    Target(panel, {&named});

    EXPECT_EQ(panel.IsAddPresetEnabled(), 0);
}

TEST_F(AddingAPreset, OpensTheDialogWithAnUnusedName)
{
    const OvxStringT proposed = ShownTexts::Of(ShownTexts::kNewPreset);
    Keep(proposed.c_str());
    Target(panel, {&styles.WithFill("object")});
    const OvxStringT unused = manager.GetUnusedPresetName(L"FillPresets", proposed);
    log.Clear();

    panel.OnAddPreset();

    EXPECT_EQ(Dialog().Read<OvxStringT>(L"AddPresetName"), unused);
    EXPECT_FALSE(unused == proposed);
    EXPECT_THAT(log.LinesOf({"dialogs", "notify"}), ElementsAre(kShown, "notify DeletePresetEnabled"));
}

TEST_F(AddingAPreset, FillsTheDialogWithoutNotifying)
{
    ListenToPresets({L"AddPresetName", L"AddPresetOkEnabled"});
    Target(panel, {&styles.WithFill("object")});

    panel.OnAddPreset();

    EXPECT_THAT(log.LinesOf({"presets"}), IsEmpty());
}

TEST_F(AddingAPreset, OnlyNotifiesWithoutATarget)
{
    panel.OnAddPreset();

    EXPECT_THAT(log.LinesOf({"dialogs", "notify"}), ElementsAre("notify DeletePresetEnabled"));
}

TEST_F(AddingAPreset, OnlyNotifiesForATargetThatNoStyleOwns)
{
    Target(panel, {&styles.OfCategory("fill", FillStyleCategoryName)});

    panel.OnAddPreset();

    EXPECT_THAT(log.LinesOf({"dialogs", "notify"}), ElementsAre("notify DeletePresetEnabled"));
}

TEST_F(AddingAPreset, OnlyNotifiesWithoutTheDialogsDataSource)
{
    Target(panel, {&styles.WithFill("object")});
    context.dataSources.clear();

    panel.OnAddPreset();

    EXPECT_THAT(log.LinesOf({"dialogs", "notify"}), ElementsAre("notify DeletePresetEnabled"));
}

TEST_F(AddingAPreset, FillsTheDialogAlsoWhereItCannotBeShown)
{
    context.dialogs = nullptr;

    Open();

    EXPECT_EQ(Dialog().Read<OvxStringT>(L"AddPresetName"), ShownTexts::Of(ShownTexts::kNewPreset));
}

TEST_F(AddingAPreset, IsAcceptedWithANameAlone)
{
    ListenToPresets({L"AddPresetOkEnabled"});
    EXPECT_FALSE(Dialog().Read<bool>(L"AddPresetOkEnabled"));

    Dialog().Write<OvxStringT>(L"AddPresetName", L"a");

    EXPECT_TRUE(Dialog().Read<bool>(L"AddPresetOkEnabled"));
    EXPECT_THAT(log.LinesOf({"presets"}), ElementsAre("presets AddPresetOkEnabled"));
}

TEST_F(AddingAPreset, KeepsItTellsTheCategoryAndClosesTheDialog)
{
    ListenToPresets({L"FillPresets"});

    Add(L"a");

    EXPECT_THAT(manager.GetPresetNames(L"FillPresets"), ElementsAre(L"a"));
    EXPECT_THAT(log.LinesOf({"confirm", "source.", "presets", "dialogs"}),
                ElementsAre("source.FillPresetItems([0: a], FillPresets)", "presets FillPresets", kClosed));
}

TEST_F(AddingAPreset, InsertsItIntoTheSharedListWhereItsNameStands)
{
    Keep(L"a");
    Keep(L"c");
    EXPECT_EQ(ListedTexts().size(), 2U);

    Add(L"b");

    EXPECT_THAT(ListedTexts(), ElementsAre(L"a", L"b", L"c"));
}

TEST_F(AddingAPreset, LeavesAListThatWasNeverFilledAsItIs)
{
    Keep(L"a");
    Keep(L"b");

    Add(L"c");

    EXPECT_THAT(log.LinesOf({"source.", "dialogs"}), ElementsAre(kClosed));
    EXPECT_THAT(ListedTexts(), ElementsAre(L"a", L"b", L"c"));
}

TEST_F(AddingAPreset, AsksBeforeItReplacesAndKeepsTheListsLength)
{
    Keep(L"a");
    Keep(L"b");
    static_cast<void>(ListedTexts());

    Add(L"a");

    EXPECT_EQ(log.LinesOf({"confirm"}), std::vector<std::string>{Asked()});
    EXPECT_THAT(ListedTexts(), ElementsAre(L"a", L"b"));
}

TEST_F(AddingAPreset, ReplacesTheItemInTheList)
{
    Keep(L"a");
    static_cast<void>(ListedTexts());
    source.presetText = L"filled anew";

    Add(L"a");

    EXPECT_THAT(ListedTexts(), ElementsAre(L"filled anew"));
}

TEST_F(AddingAPreset, ChangesNothingAndStaysOpenWhenTheAnswerIsNotYes)
{
    Keep(L"a");
    ListenToPresets({L"FillPresets"});
    confirmation.answer = 2;

    Add(L"a");

    EXPECT_THAT(log.LinesOf({"source.", "presets", "dialogs"}), IsEmpty());
}

TEST_F(AddingAPreset, OnlyNotifiesAndClosesWithoutAStyleSource)
{
    ListenToPresets({L"FillPresets"});
    Open();
    Dialog().Write<OvxStringT>(L"AddPresetName", L"a");
    app.source = nullptr;
    log.Clear();

    Dialog().Invoke(L"OnAddPresetOk");

    EXPECT_THAT(manager.GetPresetNames(L"FillPresets"), IsEmpty());
    EXPECT_THAT(log.LinesOf({"presets", "dialogs"}), ElementsAre("presets FillPresets", kClosed));
}

TEST_F(AddingAPreset, AsksAlsoWithoutAStyleSource)
{
    Keep(L"a");
    Open();
    Dialog().Write<OvxStringT>(L"AddPresetName", L"a");
    app.source = nullptr;

    Dialog().Invoke(L"OnAddPresetOk");

    EXPECT_EQ(log.LinesOf({"confirm"}), std::vector<std::string>{Asked()});
}

TEST_F(AddingAPreset, LeavesTheListAloneWhenItHoldsTooMany)
{
    Keep(L"a");
    Keep(L"b");
    static_cast<void>(ListedTexts());
    ASSERT_TRUE(manager.DeletePreset(L"FillPresets", L"a"));
    ASSERT_TRUE(manager.DeletePreset(L"FillPresets", L"b"));

    Add(L"c");

    EXPECT_THAT(ListedTexts(), ElementsAre(L"a", L"b"));
}

TEST_F(AddingAPreset, ClosesTheDialogByNothingWhenItIsCancelled)
{
    Open();

    Dialog().Invoke(L"OnAddPresetCancel");
    Dialog().Invoke(L"DimensionPresets");
    Dialog().Invoke(L"CalloutPresets");

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(AddingAPreset, BindsTheNamesOfTheDialogInOrder)
{
    EXPECT_THAT(Dialog().GetNames(),
                ElementsAre(L"AddPresetName", L"OnAddPresetOk", L"AddPresetOkEnabled", L"OnAddPresetCancel",
                            L"DimensionPresets", L"CalloutPresets"));
    EXPECT_TRUE(Dialog().IsWritableProperty(L"AddPresetName"));
    EXPECT_FALSE(Dialog().IsWritableProperty(L"AddPresetOkEnabled"));
}

} // namespace
