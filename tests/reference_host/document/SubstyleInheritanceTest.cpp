#include "tests/reference_host/document/SavedDrawing.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

using OvxUtils::Any;
using Styles::FillStyleCategoryName;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

/// A drawing with a named fill "Sea" and a rectangle with a colour of its own.
FlatDrawing WithFillStyle()
{
    return FlatDrawing()
        .Named("style:name='standard'")
        .Named("style:name='Sea' sp:category='fill'",
               "<style:graphic-properties draw:fill-color='#0000ff' draw:opacity='50%'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='standard'",
                   "<style:graphic-properties draw:fill-color='#ff0000'/>")
        .Page("<draw:rect draw:style-name='gr1'/>");
}

Styles::Style* FillOf(const OpenedDrawing& opened)
{
    return opened.Object(L"1/1")->GetStyle()->GetSubstyle(FillStyleCategoryName, false);
}

/// The rectangle's fill inherits from "Sea".
OpenedDrawing WithLinkedFill()
{
    OpenedDrawing opened = WithFillStyle().Open();
    FillOf(opened)->SetParent(opened.Named(L"Sea"));
    return opened;
}

TEST(ParentsOfSubstyles, AreKept)
{
    OpenedDrawing opened = WithLinkedFill();

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(again.ParentOf(FillOf(again)), L"Sea");
    EXPECT_THAT(AllOwnOf(again.Object(L"1/1")->GetStyle()), ElementsAre("fill.color=#ff0000"));
    EXPECT_EQ(EffectiveOf(again.Object(L"1/1")->GetStyle(), "fill.transparency"), "50");
    EXPECT_THAT(again.warnings, IsEmpty());
}

TEST(ParentsOfSubstyles, GiveTheirValuesToOtherPrograms)
{
    OpenedDrawing opened = WithLinkedFill();

    EXPECT_THAT(Saved(opened),
                HasSubstr("sp:fill-parent-style-name=\"Sea\" sp:inherited-values=\"fill.transparency\">"
                          "<style:graphic-properties draw:fill-color='#ff0000' draw:opacity=\"50%\"/>"));
}

TEST(ParentsOfSubstyles, GiveNewValuesWhenTheyChangeAlsoToShapesThatNobodyAskedFor)
{
    OpenedDrawing opened = WithLinkedFill();
    OpenedDrawing again = Reopened(opened);
    Set(again.Named(L"Sea"), "fill.transparency", Any(20));

    EXPECT_THAT(Saved(again), HasSubstr("draw:fill-color='#ff0000' draw:opacity=\"80%\""));
}

TEST(ParentsOfSubstyles, LeaveNothingBehindWhenTheyGo)
{
    OpenedDrawing opened = WithLinkedFill();
    OpenedDrawing again = Reopened(opened);
    FillOf(again)->SetParent(nullptr);

    EXPECT_EQ(Saved(again), WithFillStyle().Text());
}

TEST(ParentsOfSubstyles, MakeWayForOwnValues)
{
    OpenedDrawing opened = WithLinkedFill();
    OpenedDrawing again = Reopened(opened);
    Set(again.Object(L"1/1")->GetStyle(), "fill.transparency", Any(50));
    Set(again.Object(L"1/1")->GetStyle(), "fill.color", Any());

    const OpenedDrawing third = Reopened(again);

    EXPECT_THAT(AllOwnOf(third.Object(L"1/1")->GetStyle()), ElementsAre("fill.transparency=50"));
    EXPECT_EQ(EffectiveOf(third.Object(L"1/1")->GetStyle(), "fill.color"), "#0000ff");
}

TEST(ParentsOfSubstyles, AreUnchangedByASaveWithoutAnEdit)
{
    OpenedDrawing opened = WithLinkedFill();
    const std::string saved = Saved(opened);
    OpenedDrawing again = OpenText(saved);
    static_cast<void>(FillOf(again));

    EXPECT_EQ(Saved(again), saved);
}

TEST(ParentsOfSubstyles, WorkForNamedStyles)
{
    OpenedDrawing opened = WithFillStyle().Open();
    opened.Named(L"standard")->GetSubstyle(FillStyleCategoryName, false)->SetParent(opened.Named(L"Sea"));
    opened.drawing->RenameStyle(L"Sea", L"The Sea");

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(again.ParentOf(again.Named(L"standard")->GetSubstyle(FillStyleCategoryName, false)),
              L"The Sea");
    EXPECT_THAT(AllOwnOf(again.Named(L"standard")), IsEmpty());
    EXPECT_EQ(EffectiveOf(again.Named(L"standard"), "fill.color"), "#0000ff");
}

TEST(ParentsOfSubstyles, ThatAreMissingAreReported)
{
    FlatDrawing drawing;
    drawing.Named("style:name='Base' sp:fill-parent-style-name='Nowhere'"
                  " sp:inherited-values='fill.color'",
                  "<style:graphic-properties draw:fill-color='#0000ff'/>");
    OpenedDrawing opened = drawing.Open();

    EXPECT_THAT(opened.warnings, ElementsAre(HasSubstr("its fill has the parent \"Nowhere\"")));
    EXPECT_EQ(opened.Named(L"Base")->GetSubstyle(FillStyleCategoryName, false)->GetParent(), nullptr);
    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "fill.color"), "#0000ff");
    EXPECT_EQ(Saved(opened), drawing.Text());
}

TEST(ParentsOfSubstyles, LeaveWhatAnotherProgramMadeOfTheirValues)
{
    FlatDrawing drawing = WithFillStyle();
    drawing
        .Named("style:name='Base' sp:fill-parent-style-name='Sea' sp:inherited-values='fill.color'",
               "<style:graphic-properties draw:fill-color='#123456'/>")
        .Page("");
    OpenedDrawing opened = drawing.Open();

    EXPECT_EQ(EffectiveOf(opened.Named(L"Base"), "fill.color"), "#0000ff");
    EXPECT_EQ(Saved(opened), drawing.Text());
}

TEST(RelativeValues, StayWhatTheyWereInTextThatNobodyAskedFor)
{
    FlatDrawing drawing;
    drawing.Named("style:name='Base'", "<style:text-properties fo:font-size='20pt'/>")
        .Automatic("text", "style:name='T1'", "<style:text-properties fo:font-size='50%'/>")
        .Page("<draw:rect draw:style-name='Base'><text:p>a<text:span "
              "text:style-name='T1'>b</text:span></text:p>"
              "</draw:rect>");
    OpenedDrawing opened = drawing.Open();
    Set(opened.Named(L"Base"), "character.size", Any(400));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(OwnOf(again.Object(L"1/1")->GetRuns()[1].GetStyle(), "character.size"), "100");
}

} // namespace
