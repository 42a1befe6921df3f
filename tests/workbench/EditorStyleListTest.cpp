// Styles picked from the list of a panel as an editor runs it.

#include "tests/workbench/StyleDrawings.h"

using testing::ElementsAre;
using testing::IsEmpty;
using Workbench::PickById;
using Workbench::PickByMoreId;
using Workbench::PickByName;
using Workbench::PickNone;
using Workbench::Restyled;
using Workbench::StyleListPart;
using Workbench::StylePick;

namespace WorkbenchTests
{
namespace
{

/// What the three boxes of NumberedStyles() inherit from.
std::vector<OvxStringT> Parents(OpenEditor& open)
{
    return {StyleOf(open, L"name:One"), StyleOf(open, L"name:Two"), StyleOf(open, L"name:Three")};
}

/// Picks on what is selected, and expects one step that can be undone and done again exactly.
Restyled PickInOneStep(OpenEditor& open, const wchar_t* panel, const StylePick& pick)
{
    const std::size_t steps = open.editor.GetStepCount();
    const std::string before = open.Dump();
    Restyled restyled = open.editor.Restyle(panel, pick);
    const std::string after = open.Dump();
    EXPECT_NE(after, before);
    EXPECT_EQ(open.editor.GetStepCount(), steps + 1);
    EXPECT_TRUE(open.editor.Undo());
    EXPECT_EQ(open.Dump(), before);
    EXPECT_TRUE(open.editor.Redo());
    EXPECT_EQ(open.Dump(), after);
    return restyled;
}

} // namespace

TEST(PickingAStyle, ByItsNameRestylesAllObjectsOfTheSelection)
{
    OpenEditor open(NumberedStyles(3, "S1"));

    const Restyled restyled = PickInOneStep(open, L"style", PickByName{L"S3"});

    EXPECT_EQ(restyled.style, L"S3");
    EXPECT_FALSE(restyled.isFirstTargetOnly);
    EXPECT_THAT(Parents(open), ElementsAre(L"S3", L"S3", L"S3"));
}

TEST(PickingAStyle, LeavesOtherObjectsAlone)
{
    OpenEditor open(NumberedStyles(3, "S1"));
    open.Select(L"name:Two");

    PickInOneStep(open, L"style", PickByName{L"S3"});

    EXPECT_THAT(Parents(open), ElementsAre(L"S1", L"S3", L"S2"));
}

TEST(PickingAStyle, BeyondTheLimitGoesThroughTheDialog)
{
    OpenEditor open(NumberedStyles(40));
    open.Select(L"name:One");

    PickInOneStep(open, L"style", PickByName{L"S40"});

    EXPECT_EQ(StyleOf(open, L"name:One"), L"S40");
}

TEST(PickingAStyle, ThatIsTheFirstBeyondTheLimitGoesThroughTheDialogToo)
{
    OpenEditor open(NumberedStyles(19));

    PickInOneStep(open, L"style", PickByName{L"S10"});

    EXPECT_THAT(Parents(open), ElementsAre(L"S10", L"S10", L"S10"));
}

TEST(PickingAStyle, WithAnAmpersandBeyondTheLimitAppliesIt)
{
    OpenEditor open(NumberedStyles(19).Named("style:name='A_26_B' style:display-name='A&amp;B'"));

    const Restyled restyled = PickInOneStep(open, L"style", PickByName{L"A&B"});

    EXPECT_EQ(restyled.style, L"A&B");
    EXPECT_EQ(StyleOf(open, L"name:One"), L"A&B");
}

TEST(PickingAStyle, ByAnIdOfTheMainListAppliesItsEntry)
{
    OpenEditor open(NumberedStyles(19));

    PickInOneStep(open, L"style", PickById{9});

    EXPECT_THAT(Parents(open), ElementsAre(L"S9", L"S9", L"S9"));
}

TEST(PickingAStyle, ByTheFirstFurtherIdAppliesItAtOnce)
{
    OpenEditor open(NumberedStyles(19));

    PickInOneStep(open, L"style", PickByMoreId{9});

    EXPECT_THAT(Parents(open), ElementsAre(L"S10", L"S10", L"S10"));
}

TEST(PickingAStyle, ByALaterFurtherIdChoosesItInTheDialog)
{
    OpenEditor open(NumberedStyles(40, "S20"));
    open.Select(L"name:One");

    PickInOneStep(open, L"style", PickByMoreId{19});

    EXPECT_EQ(StyleOf(open, L"name:One"), L"S21");
}

TEST(PickingAStyle, ByIdZeroRemovesTheStyleOfTheFirstObjectAlone)
{
    OpenEditor open(NumberedStyles(3, "S1"));

    const Restyled restyled = PickInOneStep(open, L"style", PickById{0});

    EXPECT_EQ(restyled.style, L"");
    EXPECT_TRUE(restyled.isFirstTargetOnly);
    EXPECT_THAT(Parents(open), ElementsAre(L"", L"S2", L"S2"));
}

TEST(PickingNoStyle, TellsOnlyOfSeveralObjectsThatItActsOnTheFirst)
{
    OpenEditor open(NumberedStyles(3, "S1"));
    open.Select(L"name:One");
    EXPECT_FALSE(PickInOneStep(open, L"style", PickNone{}).isFirstTargetOnly);

    open.Select(L"name:Two,name:Three");
    EXPECT_TRUE(PickInOneStep(open, L"style", PickNone{}).isFirstTargetOnly);

    EXPECT_THAT(Parents(open), ElementsAre(L"", L"", L"S2"));
}

TEST(PickingNoStyle, KeepsTheLookOfTheObject)
{
    OpenEditor open(FourBoxes());
    open.Select(L"name:B");

    PickInOneStep(open, L"style", PickNone{});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(open.ValueOf(L"outline.width"), "200");
    EXPECT_EQ(open.Row(L"outline.width").origin.kind, Workbench::RowOrigin::Kind::Local);
}

TEST(PickingOnANamedStyle, SetsItsParent)
{
    OpenEditor open(NumberedStyles(3));
    open.Select(L"sheet:S3");

    const Restyled restyled = PickInOneStep(open, L"style", PickByName{L"S1"});

    EXPECT_EQ(restyled.style, L"S1");
    EXPECT_EQ(ParentOf(open, L"S3"), L"S1");
    EXPECT_THAT(Parents(open), ElementsAre(L"", L"S2", L"S2"));
}

TEST(PickingOnANamedStyle, SetsItsParentFromBeyondTheLimit)
{
    OpenEditor open(NumberedStyles(40));
    open.Select(L"sheet:S1");

    PickInOneStep(open, L"style", PickByName{L"S33"});

    EXPECT_EQ(ParentOf(open, L"S1"), L"S33");
}

TEST(PickingOnANamedStyle, RemovesItsParent)
{
    OpenEditor open(FourBoxes());
    open.Select(L"sheet:Accent");

    EXPECT_FALSE(PickInOneStep(open, L"style", PickNone{}).isFirstTargetOnly);

    EXPECT_EQ(ParentOf(open, L"Accent"), L"");
}

TEST(PickingInAPanelOfOneCategory, OffersTheStylesOfThatCategory)
{
    OpenEditor open(FourBoxes());
    open.Select(L"name:B");

    const OvxStringT created = open.editor.CreateStyle(L"fill", OvxStringT(L"Red fill"));

    EXPECT_THAT(Show(open.editor.ListStyles(L"fill", StyleListPart::Main)),
                ElementsAre("0 No Style", "1 Red fill *"));
    EXPECT_THAT(Show(open.editor.ListStyles(L"outline", StyleListPart::Main)), ElementsAre("0 No Style *"));
    EXPECT_THAT(Show(open.editor.ListStyles(L"style", StyleListPart::Main)),
                ElementsAre("0 No Style", "1 Base *", "2 Accent"));
}

TEST(PickingInAPanelOfOneCategory, GivesTheObjectsThatCategoryOfTheStyleAlone)
{
    OpenEditor open(FourBoxes());
    open.Select(L"name:B");
    open.editor.CreateStyle(L"fill", OvxStringT(L"Red fill"));
    open.Select(L"name:A,name:D");

    const Restyled restyled = PickInOneStep(open, L"fill", PickByName{L"Red fill"});

    EXPECT_EQ(restyled.style, L"Red fill");
    EXPECT_EQ(open.ValueOf(L"name:A", L"fill.color"), "#ff0000");
    EXPECT_EQ(open.ValueOf(L"name:D", L"fill.color"), "#ff0000");
    EXPECT_EQ(open.ValueOf(L"name:D", L"outline.width"), "200");
    EXPECT_EQ(StyleOf(open, L"name:A"), L"Base");
}

TEST(PickingInAPanelOfOneCategory, LeavesTheStyleOfTheWholeInForceWhenItIsRemoved)
{
    OpenEditor open(FourBoxes());
    open.Select(L"name:B");
    open.editor.CreateStyle(L"fill", OvxStringT(L"Red fill"));
    open.Select(L"name:D");
    open.editor.Restyle(L"fill", PickByName{L"Red fill"});

    const Restyled restyled = PickInOneStep(open, L"fill", PickNone{});

    EXPECT_EQ(restyled.style, L"Base");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(StyleOf(open, L"name:D"), L"Base");
}

/// The box D, the only one with text, is selected; the styles "Wide" and "Narrow" are for its paragraphs.
class PickingForText : public EditorOnFourBoxes
{
protected:
    PickingForText()
    {
        MakeStyle(L"Wide", L"9mm");
        MakeStyle(L"Narrow", L"1mm");
    }

    void MakeStyle(const wchar_t* name, const wchar_t* leftIndent)
    {
        open.Select(L"name:D");
        editor.CreateStyle(L"paragraph", OvxStringT(name));
        open.Select((OvxStringViewT(L"sheet:") + OvxStringT(name)).c_str());
        open.Set(L"paragraph.left-indent", leftIndent);
        open.Select(L"name:D");
    }
};

TEST_F(PickingForText, GivesTheStyleToTheParagraphs)
{
    const Restyled restyled = PickInOneStep(open, L"paragraph", PickByName{L"Wide"});

    EXPECT_EQ(restyled.style, L"Wide");
    EXPECT_EQ(open.ValueOf(L"paragraph.left-indent"), "900");
    EXPECT_THAT(Show(editor.ListStyles(L"paragraph", StyleListPart::Main)),
                ElementsAre("0 No Style", "1 Wide *", "2 Narrow"));
}

TEST_F(PickingForText, GivesTheStyleToTheParagraphsInAGroup)
{
    editor.BeginGroup();

    EXPECT_EQ(editor.Restyle(L"paragraph", PickByName{L"Wide"}).style, L"Wide");
    editor.EndGroup(true);

    EXPECT_EQ(open.ValueOf(L"paragraph.left-indent"), "900");
}

TEST_F(PickingForText, RefusesTheStyleInForce)
{
    EXPECT_THAT(open.ErrorOf([&] { editor.Restyle(L"paragraph", PickByName{L"Narrow"}); }),
                testing::HasSubstr("inherits from it already"));
}

TEST_F(PickingForText, TakesTheStyleAway)
{
    const Restyled restyled = PickInOneStep(open, L"paragraph", PickNone{});

    EXPECT_EQ(restyled.style, L"Base");
    EXPECT_EQ(open.ValueOf(L"paragraph.left-indent"), "100");
}

TEST(PickingInAGroup, IsPartOfTheStepOfTheGroup)
{
    OpenEditor open(NumberedStyles(3, "S1"));
    open.editor.BeginGroup();

    open.editor.Restyle(L"style", PickByName{L"S3"});
    open.Set(L"fill.color", L"red");
    open.editor.EndGroup(true);

    EXPECT_EQ(open.editor.GetStepCount(), 1U);
    EXPECT_THAT(Parents(open), ElementsAre(L"S3", L"S3", L"S3"));
    open.editor.Undo();
    EXPECT_THAT(Parents(open), ElementsAre(L"S1", L"S2", L"S2"));
}

TEST(PickingInAGroup, IsTakenBackWithAGroupThatIsGivenUp)
{
    OpenEditor open(NumberedStyles(3, "S1"));
    const std::string before = open.Dump();
    open.editor.BeginGroup();
    open.editor.Restyle(L"style", PickByName{L"S3"});

    open.editor.EndGroup(false);

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(open.editor.GetStepCount(), 0U);
}

TEST(ListingStyles, ChangesNothing)
{
    OpenEditor open(NumberedStyles(40, "S1"));
    const std::string before = open.Dump();

    static_cast<void>(open.editor.ListStyles(L"style", StyleListPart::Main));
    static_cast<void>(open.editor.ListStyles(L"fill", StyleListPart::More));

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(open.editor.GetStepCount(), 0U);
    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST(ListingStyles, IsEmptyWhereNothingThatIsSelectedBelongsToThePanel)
{
    OpenEditor open(NumberedFills(3));
    open.Select(L"sheet:S1");

    EXPECT_THAT(open.editor.ListStyles(L"outline", StyleListPart::Main).entries, IsEmpty());
}

TEST(ListingStyles, OfANamedStyleLeavesOutWhatInheritsFromIt)
{
    OpenEditor open(FourBoxes());
    open.Select(L"sheet:Base");

    EXPECT_THAT(Show(open.editor.ListStyles(L"style", StyleListPart::Main)),
                ElementsAre("0 No Parent Style *"));
}

} // namespace WorkbenchTests
