// The two lists of styles as panels build them on a drawing, read into plain entries.

#include "apps/workbench/StyleList.h"

#include "tests/workbench/StyleDrawings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Workbench::StyleList;
using Workbench::StyleListEntry;
using Workbench::StyleListPart;

namespace WorkbenchTests
{
namespace
{

/// The list of the style panel for the box One of NumberedStyles().
StyleList ListFor(const FlatDrawing& drawing, StyleListPart part)
{
    OpenEditor open(drawing);
    open.Select(L"name:One");
    return open.editor.ListStyles(L"style", part);
}

} // namespace

TEST(StyleListOfADrawing, WithoutStylesOffersNone)
{
    const StyleList list = ListFor(NumberedStyles(0), StyleListPart::Main);

    EXPECT_THAT(Show(list), ElementsAre("0 No Style *"));
    EXPECT_FALSE(list.hasMore);
}

TEST(StyleListOfADrawing, ChecksTheStyleInForce)
{
    EXPECT_THAT(Show(ListFor(NumberedStyles(1), StyleListPart::Main)), ElementsAre("0 No Style *", "1 S1"));
    EXPECT_THAT(Show(ListFor(NumberedStyles(1, "S1"), StyleListPart::Main)),
                ElementsAre("0 No Style", "1 S1 *"));
}

TEST(StyleListOfADrawing, HoldsEighteenStyles)
{
    const StyleList list = ListFor(NumberedStyles(18, "S18"), StyleListPart::Main);

    ASSERT_THAT(list.entries, SizeIs(19));
    EXPECT_EQ(Show(list).back(), "18 S18 *");
    EXPECT_FALSE(list.hasMore);
}

TEST(StyleListOfADrawing, ShowsNineOfNineteenAndLeadsOn)
{
    const StyleList list = ListFor(NumberedStyles(19), StyleListPart::Main);

    EXPECT_THAT(Show(list), ElementsAre("0 No Style *", "1 S1", "2 S2", "3 S3", "4 S4", "5 S5", "6 S6",
                                        "7 S7", "8 S8", "9 S9", "10 More Styles... >"));
    EXPECT_TRUE(list.hasMore);
}

TEST(StyleListOfADrawing, ShowsTheStyleInForceFromBeyondTheLimit)
{
    const StyleList list = ListFor(NumberedStyles(40, "S30"), StyleListPart::Main);

    ASSERT_THAT(list.entries, SizeIs(12));
    EXPECT_EQ(Show(list)[10], "10 S30 *");
    EXPECT_EQ(Show(list)[11], "11 More Styles... >");
}

TEST(StyleListOfADrawing, HoldsTextAndNameDoubledWhereANameHasAnAmpersand)
{
    const StyleList list = ListFor(
        NumberedStyles(0).Named("style:name='A_26_B' style:display-name='A&amp;B'"), StyleListPart::Main);

    ASSERT_THAT(list.entries, SizeIs(2));
    EXPECT_EQ(list.entries[1].text, L"A&&B");
    EXPECT_EQ(list.entries[1].styleName, L"A&&B");
}

TEST(StyleListOfADrawing, NamesNoStyleInTheEntryForNone)
{
    const StyleListEntry none = ListFor(NumberedStyles(1), StyleListPart::Main).entries.at(0);

    EXPECT_EQ(none.styleName, L"");
    EXPECT_TRUE(none.node.IsValid());
    EXPECT_FALSE(none.leadsToDialog);
}

TEST(FurtherStylesOfADrawing, AreNoneBelowNineteen)
{
    EXPECT_THAT(ListFor(NumberedStyles(0), StyleListPart::More).entries, IsEmpty());
    EXPECT_THAT(ListFor(NumberedStyles(18), StyleListPart::More).entries, IsEmpty());
}

TEST(FurtherStylesOfADrawing, BeginWithNineWhichIsAppliedAtOnce)
{
    const StyleList list = ListFor(NumberedStyles(19), StyleListPart::More);

    EXPECT_THAT(Show(list), ElementsAre("9 S10", "10 S11 >", "11 S12 >", "12 S13 >", "13 S14 >", "14 S15 >",
                                        "15 S16 >", "16 S17 >", "17 S18 >", "18 S19 >"));
    EXPECT_FALSE(list.hasMore);
}

TEST(FurtherStylesOfADrawing, LeaveOutTheStyleInForce)
{
    const StyleList list = ListFor(NumberedStyles(40, "S11"), StyleListPart::More);

    ASSERT_THAT(list.entries, SizeIs(30));
    EXPECT_EQ(Show(list)[0], "9 S10");
    EXPECT_EQ(Show(list)[1], "10 S12 >");
    EXPECT_EQ(Show(list).back(), "38 S40 >");
}

TEST(FurtherStylesOfADrawing, HaveTheirNamesAsTheyAre)
{
    const StyleList list = ListFor(
        NumberedStyles(18).Named("style:name='A_26_B' style:display-name='A&amp;B'"), StyleListPart::More);

    EXPECT_EQ(list.entries.back().text, L"A&B");
    EXPECT_EQ(list.entries.back().styleName, L"A&B");
}

TEST(EscapingForMenus, DoublesEveryAmpersand)
{
    EXPECT_EQ(Workbench::EscapeForMenu(L"A&B && C"), L"A&&B &&&& C");
    EXPECT_EQ(Workbench::EscapeForMenu(L""), L"");
}

} // namespace WorkbenchTests
