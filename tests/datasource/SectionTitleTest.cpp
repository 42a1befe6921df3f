// What a panel's section is called: its category, and the style that the first target inherits from.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

class SectionTitle : public HostedTest
{
protected:
    SectionTitle() { NameInSheet(L"Base", base); }

    /// Makes the panel one of a category whose display name is `displayName`: the resources hold no text
    /// under that key, and then give the key.
    void UseCategory(const wchar_t* displayName)
    {
        HostPieces::RegisterCategory(Key(displayName), displayName);
        panel.category = Key(displayName);
    }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
};

TEST_F(SectionTitle, NamesTheCategoryAndTheDisplayNameOfWhatTheTargetsOwnerInheritsFrom)
{
    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
    EXPECT_THAT(log.LinesOf({"stylesApp"}), ElementsAre("stylesApp.GetDisplayStyleName(Base)"));
}

TEST_F(SectionTitle, NeverNamesTheTargetItself)
{
    NameInSheet(L"Box", box);

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
}

TEST_F(SectionTitle, PrefersTheParentOfTheCategorysOwnStyle)
{
    Style& fillBase = styles.OfCategory("fillBase", FillStyleCategoryName);
    NameInSheet(L"Fill Base", fillBase);
    FillOf(box).SetParent(&fillBase);

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Fill Base>");
    EXPECT_THAT(log.LinesOf({"sheet.GetStyleName(fillBase)", "sheet.GetStyleName(base)"}),
                ElementsAre("sheet.GetStyleName(fillBase)"));
}

TEST_F(SectionTitle, FallsBackToTheOwnersParentWhenTheOwnParentHasNoName)
{
    FillOf(box).SetParent(&styles.OfCategory("unlisted", FillStyleCategoryName));

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
    EXPECT_THAT(
        log.LinesOf({"sheet.GetStyleName"}),
        ElementsAre("sheet.GetStyleName(unlisted)", "sheet.GetStyleName(base)", "sheet.GetStyleName(box)"));
}

TEST_F(SectionTitle, IsTheCategoryAloneWhenNoParentHasAName)
{
    sheet.entries.clear();

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill");
    EXPECT_THAT(log.LinesOf({"stylesApp"}), IsEmpty());
}

TEST_F(SectionTitle, IsTheCategoryAloneWhenAStyleByItselfHasAnUnnamedParent)
{
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName,
                                     &styles.OfCategory("unlisted", FillStyleCategoryName));

    Target(panel, {&alone});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill");
}

TEST_F(SectionTitle, IsTheCategoryAloneWithoutAParent)
{
    Target(panel, {&base});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill");
    EXPECT_THAT(log.LinesOf({"source.GetStyleSheet"}), testing::SizeIs(1)) << "for the style name only";
}

TEST_F(SectionTitle, IsTheCategoryAloneForANullFirst)
{
    Target(panel, {nullptr, &box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill");
}

TEST_F(SectionTitle, IsTheCategoryAloneWithoutASource)
{
    app.source = nullptr;

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill");
}

TEST_F(SectionTitle, IsTheCategoryAloneWithoutASheet)
{
    source.sheet = nullptr;

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill");
}

TEST_F(SectionTitle, GivesTheNameAsItIsWhenTheApplicationHasNoServicesForStyles)
{
    app.stylesApp = nullptr;

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: Base");
}

TEST_F(SectionTitle, FollowsTheFirstTargetAlone)
{
    Style& other = styles.WithFill("other");
    NameInSheet(L"Other", other);
    Style& circle = styles.WithFill("circle", &other);

    Target(panel, {&circle, &box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Other>");
}

TEST_F(SectionTitle, ForgetsTheStyleOfEarlierTargets)
{
    Target(panel, {&box});

    Target(panel, {});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill");
}

TEST_F(SectionTitle, OfExternalTargetsComesFromTheirOwnSheet)
{
    RecordingSheet library(log, "library");
    library.entries.push_back({L"Library Base", &base});
    source.externalSheets[L"Library"] = &library;
    HostPieces::MoveToExternalSheet(box, L"Library", L"");

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Library Base>");
    EXPECT_THAT(log.LinesOf({"source.Get", "library."}),
                ElementsAre("source.GetStyleSheet()", "source.GetExternalStyleSheet(Library)",
                            "library.GetStyleName(null)", "library.GetStyleName(base)",
                            "source.GetStyleSheet()"));
}

TEST_F(SectionTitle, OfExternalTargetsIsTheCategoryAloneWithoutTheirSheet)
{
    HostPieces::MoveToExternalSheet(box, L"Library", L"");

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill") << "the document's sheet knows the parent, but is not asked";
}

TEST_F(SectionTitle, DoublesAnAmpersandOfTheCategory)
{
    UseCategory(L"Lines & Fills");

    Target(panel, {});

    EXPECT_EQ(panel.GetSectionTitle(), L"Lines && Fills");
}

TEST_F(SectionTitle, DoublesTheAmpersandsOfTheWholeText)
{
    UseCategory(L"A&B");
    Style& child = styles.Whole("child", &base);
    child.GetSubstyleAndCreateIfMissing(panel.category, panel.category);
    base.GetSubstyleAndCreateIfMissing(panel.category, panel.category);
    sheet.entries.front().name = L"R&&D";

    Target(panel, {&child});

    EXPECT_EQ(panel.GetSectionTitle(), L"A&&B: <R&&&&D>");
}

TEST_F(SectionTitle, KeepsAnAmpersandSingleBeforeThereWereTargets)
{
    UseCategory(L"Lines & Fills");

    EXPECT_EQ(panel.GetSectionTitle(), L"Lines & Fills");
    EXPECT_EQ(panel.GetSectionTitle(), L"Lines & Fills") << "also when it is asked again";
}

TEST_F(SectionTitle, LeavesInsertsWithinANameAsTheyAre)
{
    sheet.entries.front().name = L"100%1 %%";

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <100%1 %%>");
}

TEST_F(SectionTitle, IsEmptyForACategoryThatTheHostDoesNotKnow)
{
    panel.category = Key(L"unknown to the host");
    panel.ListenTo({L"SectionTitle"});

    Target(panel, {});

    EXPECT_EQ(panel.GetSectionTitle(), L"");
    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify SectionTitle"));
}

TEST_F(SectionTitle, NamesTheStyleAloneForACategoryThatTheHostDoesNotKnow)
{
    panel.category = Key(L"unknown to the host");
    base.GetSubstyleAndCreateIfMissing(panel.category, panel.category);

    Target(panel, {&box});

    EXPECT_EQ(panel.GetSectionTitle(), L": <Base>");
}

TEST_F(SectionTitle, IsFilledOnceItsCategoryBecomesKnown)
{
    panel.category = Key(L"Late");
    Target(panel, {});

    HostPieces::RegisterCategory(Key(L"Late"), L"Late & Later");

    EXPECT_EQ(panel.GetSectionTitle(), L"Late & Later");
}

TEST_F(SectionTitle, IsBoundToTheOverridingOperation)
{
    panel.title = L"A title of the panel's own";

    EXPECT_EQ(panel.Read<OvxStringT>(L"SectionTitle"), L"A title of the panel's own");
}

// The has-parent value, as far as the title shows when it is found.

TEST_F(SectionTitle, FindsTheHasParentValueBeforeTheSourceIsAsked)
{
    log.onLine = [this](const std::string& line)
    {
        if (line == "app.GetActiveStyleSourceProvider()")
            box.SetParent(nullptr);
    };

    Target(panel, {&box});

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::Inherited)
        << "the parent was there when the value was found";
}

TEST_F(SectionTitle, FindsTheHasParentValueAlsoWithoutASource)
{
    app.source = nullptr;

    Target(panel, {&box});
    box.SetParent(nullptr);

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::Inherited);
}

TEST_F(SectionTitle, LeavesTheHasParentValueToBeFoundWhenNothingIsShownOfTheFirst)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };
    Target(panel, {&base});

    base.SetParent(&styles.WithFill("late"));

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::Inherited)
        << "the parent came after the targets, and counts";
}

TEST_F(SectionTitle, DoesNotAskTheSourceWithoutAParent)
{
    Target(panel, {&base});

    EXPECT_THAT(log.LinesOf({"sheet."}), ElementsAre("sheet.GetStyleName(base)"))
        << "for the style name only";
}

} // namespace
