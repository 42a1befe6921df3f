#include "tests/reference_host/document/SavedDrawing.h"

#include <gmock/gmock.h>

using OvxUtils::Any;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

const std::string kRed = "<style:graphic-properties draw:fill-color='#ff0000' draw:unknown='kept'/>";

/// Three rectangles that share one automatic style, with an odd child.
FlatDrawing ThreeShared()
{
    return FlatDrawing()
        .Named("style:name='standard'")
        .Named("style:name='Base'")
        .Automatic("<style:style style:name='gr1' style:family='graphic' style:parent-style-name='Base'>" +
                   kRed + "<style:map/></style:style>")
        .Automatic("graphic", "style:name='gr2'", "")
        .Page("<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='gr1'/>"
              "<draw:rect draw:style-name='gr1'/>");
}

TEST(SharedAutomaticStyles, AreSplitForTheOneThatDiffers)
{
    OpenedDrawing opened = ThreeShared().Open();
    Set(opened.Object(L"1/2")->GetStyle(), "fill.color", ColourValue(0, 0, 255));

    const std::string saved = Saved(opened);

    // The copy keeps what nobody here knows, and stands directly behind.
    EXPECT_THAT(saved,
                HasSubstr("<style:map/></style:style><style:style style:name='gr3' style:family='graphic'"
                          " style:parent-style-name='Base'><style:graphic-properties"
                          " draw:fill-color='#0000ff' draw:unknown='kept'/><style:map/></style:style>"));
    const OpenedDrawing again = OpenText(saved);
    EXPECT_EQ(OwnOf(again.Object(L"1/1")->GetStyle(), "fill.color"), "#ff0000");
    EXPECT_EQ(OwnOf(again.Object(L"1/2")->GetStyle(), "fill.color"), "#0000ff");
    EXPECT_EQ(OwnOf(again.Object(L"1/3")->GetStyle(), "fill.color"), "#ff0000");
}

TEST(ShapesThatWereOnlyLookedAt, StayAsTheFileSaysWhenAnotherIsEdited)
{
    const FlatDrawing drawing =
        FlatDrawing()
            .Automatic("paragraph", "style:name='P1'", "<style:paragraph-properties fo:text-align='center'/>")
            .Automatic("graphic", "style:name='gr1'", kRed)
            .Automatic("graphic", "style:name='gr2'", "<style:graphic-properties draw:fill='none'/>")
            .Page("<draw:rect draw:style-name='gr1'/>"
                  "<draw:rect draw:style-name='gr2' draw:text-style-name='P1'/>");
    OpenedDrawing opened = drawing.Open();
    ASSERT_EQ(OwnOf(opened.Object(L"1/2")->GetStyle(), "paragraph.align"), "center");

    Set(opened.Object(L"1/1")->GetStyle(), "fill.color", ColourValue(0, 0, 255));

    EXPECT_EQ(Difference(drawing.Text(), Saved(opened)), "ff0000 -> 0000ff");
}

TEST(SharedAutomaticStyles, AreSplitOnceForAllThatWantTheSame)
{
    OpenedDrawing opened = ThreeShared().Open();
    for (const wchar_t* const id : {L"1/1", L"1/3"})
        Set(opened.Object(id)->GetStyle(), "fill.color", ColourValue(0, 0, 255));

    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("<draw:rect draw:style-name='gr3'/><draw:rect draw:style-name='gr1'/>"
                                 "<draw:rect draw:style-name='gr3'/>"));
    EXPECT_THAT(saved, Not(HasSubstr("gr4")));
}

TEST(SharedAutomaticStyles, AreEditedInPlaceWhenAllWantTheSame)
{
    OpenedDrawing opened = ThreeShared().Open();
    for (const wchar_t* const id : {L"1/1", L"1/2", L"1/3"})
        Set(opened.Object(id)->GetStyle(), "fill.color", ColourValue(0, 0, 255));

    EXPECT_EQ(Difference(ThreeShared().Text(), Saved(opened)), "ff0000 -> 0000ff");
}

TEST(SharedAutomaticStyles, LeaveNoStyleBehindThatNobodyUses)
{
    OpenedDrawing opened = ThreeShared().Open();
    Set(opened.Object(L"1/1")->GetStyle(), "fill.color", ColourValue(0, 0, 1));
    Set(opened.Object(L"1/2")->GetStyle(), "fill.color", ColourValue(0, 0, 2));
    Set(opened.Object(L"1/3")->GetStyle(), "fill.color", ColourValue(0, 0, 3));

    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, Not(HasSubstr("#ff0000")));
    EXPECT_THAT(saved, HasSubstr("<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='gr3'/>"
                                 "<draw:rect draw:style-name='gr4'/>"));
}

TEST(SharedAutomaticStyles, StayForMasterPagesThatUseThem)
{
    FlatDrawing drawing = ThreeShared();
    drawing.Styles("<draw:fill-image draw:name='x' presentation:style-name='gr1'"
                   " xmlns:presentation='urn:p'/>");
    OpenedDrawing opened = drawing.Open();
    for (const wchar_t* const id : {L"1/1", L"1/2", L"1/3"})
        Set(opened.Object(id)->GetStyle(), "fill.color", ColourValue(0, 0, 255));

    EXPECT_THAT(Saved(opened), HasSubstr("#ff0000"));
}

TEST(NewAutomaticStyles, AreMadeForAShapeThatRefersToANamedOne)
{
    FlatDrawing drawing;
    drawing.Named("style:name='Base'").Named("style:name='gr1'").Page("<draw:rect draw:style-name='Base'/>");
    OpenedDrawing opened = drawing.Open();
    Set(opened.Object(L"1/1")->GetStyle(), "outline.width", Any(100));

    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("<office:automatic-styles><style:style style:name=\"gr2\""
                                 " style:family=\"graphic\" style:parent-style-name=\"Base\">"
                                 "<style:graphic-properties svg:stroke-width=\"1mm\"/></style:style>"
                                 "</office:automatic-styles>"));
    EXPECT_THAT(saved, HasSubstr("<draw:rect draw:style-name='gr2'/>"));
}

TEST(NewAutomaticStyles, AreMadeForAShapeWithoutAny)
{
    FlatDrawing drawing;
    drawing.Named("style:name='standard'").Page("<draw:rect/><draw:rect/>");
    OpenedDrawing opened = drawing.Open();
    for (const wchar_t* const id : {L"1/1", L"1/2"})
        Set(opened.Object(id)->GetStyle(), "outline.width", Any(100));

    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("style:parent-style-name=\"standard\""));
    EXPECT_THAT(saved, HasSubstr("<draw:rect draw:style-name=\"gr1\"/><draw:rect draw:style-name=\"gr1\"/>"));
}

TEST(NewAutomaticStyles, GetAPlaceWhereThereIsNone)
{
    std::string text = FlatDrawing().Named("style:name='standard'").Page("<draw:rect/>").Text();
    const std::string container = "<office:automatic-styles></office:automatic-styles>";
    text.erase(text.find(container), container.size());
    OpenedDrawing opened = OpenText(text);
    Set(opened.Object(L"1/1")->GetStyle(), "outline.width", Any(100));

    EXPECT_THAT(Saved(opened), HasSubstr("</office:styles><office:automatic-styles><style:style"));
    EXPECT_EQ(OwnOf(Reopened(opened).Object(L"1/1")->GetStyle(), "outline.width"), "100");
}

TEST(ParentsOfShapes, ChangeInTheAutomaticStyle)
{
    OpenedDrawing opened = ThreeShared().Open();
    opened.Object(L"1/1")->GetStyle()->SetParent(opened.Named(L"standard"));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(again.ParentOf(again.Object(L"1/1")->GetStyle()), L"standard");
    EXPECT_EQ(again.ParentOf(again.Object(L"1/2")->GetStyle()), L"Base");
}

TEST(ParentsOfShapes, MayBeMissing)
{
    OpenedDrawing opened = ThreeShared().Open();
    opened.Object(L"1/1")->GetStyle()->SetParent(nullptr);

    OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(again.Object(L"1/1")->GetStyle()->GetParent(), nullptr);
    EXPECT_THAT(again.warnings, IsEmpty());
    again.Object(L"1/1")->GetStyle()->SetParent(again.Named(L"Base"));
    const OpenedDrawing third = Reopened(again);
    EXPECT_EQ(third.ParentOf(third.Object(L"1/1")->GetStyle()), L"Base");
}

} // namespace
