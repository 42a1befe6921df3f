#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>

using ReferenceHost::DrawingObject;
using ReferenceHost::TextUnit;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// A drawing with one rectangle on its page: three automatic styles for its text, and the text.
OpenedDrawing RectangleWith(const std::string& text)
{
    return FlatDrawing()
        .Named("style:name='Base'", "<style:text-properties fo:font-size='14pt'/>")
        .Automatic(
            "graphic", "style:name='gr1' style:parent-style-name='Base'",
            "<style:graphic-properties draw:fill-color='#eeeeee'/><style:text-properties fo:font-size='10pt'"
            " fo:font-weight='bold'/>")
        .Automatic(
            "paragraph", "style:name='P1'",
            "<style:paragraph-properties fo:text-align='end'/><style:text-properties fo:font-size='20pt'/>")
        .Automatic("paragraph", "style:name='P2'", "<style:paragraph-properties fo:margin-left='5mm'/>")
        .Automatic("text", "style:name='T1'", "<style:text-properties fo:color='#cc0000'/>")
        .Automatic("text", "style:name='T2'",
                   "<style:text-properties fo:color='#00cc00' fo:font-style='italic'/>")
        .Page(text)
        .Open();
}

/// What the runs of the first object set for one property.
std::vector<std::string> OfRuns(const OpenedDrawing& opened, const std::string& path)
{
    std::vector<std::string> values;
    for (TextUnit& run : opened.Object(L"1/1")->GetRuns())
        values.push_back(OwnOf(run.GetStyle(), path));
    return values;
}

std::vector<std::string> OfParagraphs(const OpenedDrawing& opened, const std::string& path)
{
    std::vector<std::string> values;
    for (TextUnit& paragraph : opened.Object(L"1/1")->GetParagraphs())
        values.push_back(OwnOf(paragraph.GetStyle(), path));
    return values;
}

TEST(Texts, AreParagraphsAndTheirRuns)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect draw:style-name='gr1'><text:p>one <text:span text:style-name='T1'>two</text:span>"
        " three</text:p><text:h>four</text:h></draw:rect>");
    DrawingObject* const object = opened.Object(L"1/1");

    EXPECT_EQ(object->GetParagraphs().size(), 2U);
    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("-", "#cc0000", "-", "-"));
    EXPECT_EQ(object->GetParagraphs()[0].GetKind(), TextUnit::Kind::Paragraph);
    EXPECT_EQ(object->GetRuns()[0].GetKind(), TextUnit::Kind::Run);
    EXPECT_EQ(&object->GetRuns()[3].GetObject(), object);
}

TEST(Texts, InheritFromTheNamedStyleOfTheirShape)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect draw:style-name='gr1'><text:p text:style-name='P1'>a</text:p></draw:rect>");
    DrawingObject* const object = opened.Object(L"1/1");

    EXPECT_EQ(opened.ParentOf(object->GetParagraphs()[0].GetStyle()), L"Base");
    EXPECT_EQ(opened.ParentOf(object->GetRuns()[0].GetStyle()), L"Base");
}

TEST(Runs, SetWhatSpanParagraphAndShapeSetNearestFirst)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect draw:style-name='gr1'><text:p text:style-name='P1'>"
                      "<text:span text:style-name='T1'>a</text:span></text:p></draw:rect>");

    EXPECT_THAT(AllOwnOf(opened.Object(L"1/1")->GetRuns()[0].GetStyle()),
                ElementsAre("character.color=#cc0000", "character.size=200", "character.weight=bold",
                            "paragraph.align=end"));
}

TEST(Paragraphs, SetWhatTheyAndTheirShapeSet)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect draw:style-name='gr1'><text:p text:style-name='P1'>"
                      "<text:span text:style-name='T1'>a</text:span></text:p></draw:rect>");

    EXPECT_THAT(AllOwnOf(opened.Object(L"1/1")->GetParagraphs()[0].GetStyle()),
                ElementsAre("character.size=200", "character.weight=bold", "paragraph.align=end"));
}

TEST(Texts, TakeTheTextStyleOfTheirShape)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect draw:style-name='gr1' draw:text-style-name='P1'><text:p>a</text:p></draw:rect>");

    EXPECT_THAT(OfParagraphs(opened, "paragraph.align"), ElementsAre("end"));
    EXPECT_THAT(OfRuns(opened, "character.size"), ElementsAre("200"));
}

TEST(Texts, TakeTheTextStyleOfTheirShapeBehindTheirOwn)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect draw:style-name='gr1' draw:text-style-name='P1'>"
        "<text:p text:style-name='P2'>a</text:p><text:p text:style-name='P1'>b</text:p></draw:rect>");

    EXPECT_THAT(OfParagraphs(opened, "paragraph.left-indent"), ElementsAre("500", "-"));
    EXPECT_THAT(OfParagraphs(opened, "paragraph.align"), ElementsAre("end", "end"));
    EXPECT_THAT(OfRuns(opened, "character.size"), ElementsAre("200", "200"));
}

TEST(ShapesWithText, LeaveTheTextStyleToTheText)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect draw:style-name='gr1' draw:text-style-name='P1'><text:p>a</text:p></draw:rect>");

    EXPECT_THAT(AllOwnOf(opened.Object(L"1/1")->GetStyle()),
                ElementsAre("character.size=100", "character.weight=bold", "fill.color=#eeeeee"));
}

TEST(ShapesWithoutText, StandForThemselves)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect draw:style-name='gr1' draw:text-style-name='P1'/>");
    DrawingObject* const object = opened.Object(L"1/1");

    EXPECT_THAT(object->GetParagraphs(), IsEmpty());
    EXPECT_THAT(object->GetRuns(), IsEmpty());
    EXPECT_THAT(AllOwnOf(object->GetStyle()), ElementsAre("character.size=200", "character.weight=bold",
                                                          "fill.color=#eeeeee", "paragraph.align=end"));
}

TEST(EmptyParagraphs, HaveOneEmptyRun)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect draw:style-name='gr1'><text:p text:style-name='P1'/><text:p> \n </text:p>"
                      "<text:p><text:span text:style-name='T1'/></text:p></draw:rect>");

    EXPECT_THAT(OfParagraphs(opened, "character.size"), ElementsAre("200", "100", "100"));
    EXPECT_THAT(OfRuns(opened, "character.size"), ElementsAre("200", "100", "100"));
    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("-", "-", "-"));
}

TEST(Texts, OfListsSectionsAndFramesCount)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:frame draw:style-name='gr1'><draw:text-box><text:p>a</text:p><text:list><text:list-header>"
        "<text:p>b</text:p></text:list-header><text:list-item><text:p>c</text:p><text:list>"
        "<text:list-item><text:h>d</text:h></text:list-item></text:list></text:list-item></text:list>"
        "<text:section><text:p>e</text:p></text:section></draw:text-box></draw:frame>");

    EXPECT_EQ(opened.Object(L"1/1")->GetParagraphs().size(), 5U);
}

TEST(Texts, OfTablesAnnotationsAndInnerShapesDoNotCount)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect draw:style-name='gr1'><office:event-listeners/><svg:desc>x</svg:desc>"
        "<text:p>a<office:annotation><text:p>b</text:p></office:annotation><text:note><text:note-body>"
        "<text:p>c</text:p></text:note-body></text:note><draw:rect><text:p>d</text:p></draw:rect></text:p>"
        "</draw:rect>");

    EXPECT_EQ(opened.Object(L"1/1")->GetParagraphs().size(), 1U);
    EXPECT_EQ(opened.Object(L"1/1")->GetRuns().size(), 1U);
    EXPECT_THAT(opened.Ids(), ElementsAre(L"1/1"));
}

TEST(Spans, WithinSpansComeFirst)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect><text:p><text:span text:style-name='T2'>a<text:span text:style-name='T1'>b"
                      "</text:span>c</text:span></text:p></draw:rect>");

    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("#00cc00", "#cc0000", "#00cc00"));
    EXPECT_THAT(OfRuns(opened, "character.posture"), ElementsAre("italic", "italic", "italic"));
}

TEST(Spans, WithoutTextMakeNoRuns)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect><text:p>a<text:span text:style-name='T1'/>b</text:p></draw:rect>");

    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("-"));
}

TEST(Spans, OfOneStyleAreRunsOfTheirOwn)
{
    const OpenedDrawing opened =
        RectangleWith("<draw:rect><text:p><text:span text:style-name='T1'>a</text:span>"
                      "<text:span text:style-name='T1'>b</text:span></text:p></draw:rect>");

    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("#cc0000", "#cc0000"));
}

TEST(Links, AreSpansToo)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect><text:p>a<text:a xlink:href='x' text:style-name='T1'>b</text:a></text:p></draw:rect>");

    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("-", "#cc0000"));
}

TEST(Fields, TabsAndBreaksAreText)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect><text:p><text:span text:style-name='T1'><text:page-number>1</text:page-number>"
        "</text:span><text:tab/><text:span text:style-name='T2'><text:line-break/></text:span></text:p>"
        "</draw:rect>");

    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("#cc0000", "-", "#00cc00"));
}

TEST(Bookmarks, AreNoText)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect><text:p><text:bookmark text:name='x'/><text:span text:style-name='T1'>a</text:span>"
        "</text:p></draw:rect>");

    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("#cc0000"));
}

TEST(RubyTexts, CountByTheirBase)
{
    const OpenedDrawing opened = RectangleWith(
        "<draw:rect><text:p><text:ruby><text:ruby-base>a<text:span text:style-name='T1'>b</text:span>"
        "</text:ruby-base><text:ruby-text>c</text:ruby-text></text:ruby></text:p></draw:rect>");

    EXPECT_THAT(OfRuns(opened, "character.color"), ElementsAre("-", "#cc0000"));
}

TEST(Blanks, AroundSpansAreOnlyTextBetweenText)
{
    const OpenedDrawing indented = RectangleWith(
        "<draw:rect><text:p>\n  <text:span text:style-name='T1'>a</text:span>\n</text:p></draw:rect>");
    const OpenedDrawing between =
        RectangleWith("<draw:rect><text:p><text:span text:style-name='T1'>a</text:span> "
                      "<text:span text:style-name='T2'>b</text:span></text:p></draw:rect>");
    const OpenedDrawing afterBlank =
        RectangleWith("<draw:rect><text:p><text:span text:style-name='T1'>a </text:span> "
                      "<text:span text:style-name='T2'>b</text:span></text:p></draw:rect>");

    EXPECT_THAT(OfRuns(indented, "character.color"), ElementsAre("#cc0000"));
    EXPECT_THAT(OfRuns(between, "character.color"), ElementsAre("#cc0000", "-", "#00cc00"));
    EXPECT_THAT(OfRuns(afterBlank, "character.color"), ElementsAre("#cc0000", "#00cc00"));
}

TEST(Texts, TakeTheNamedStylesThatTheirStylesInheritFrom)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Styles("<style:style style:family='paragraph' style:name='Body'>"
                    "<style:paragraph-properties fo:text-align='center'/></style:style>"
                    "<style:style style:family='paragraph' style:name='Quote' style:parent-style-name='Body'>"
                    "<style:text-properties fo:font-style='italic'/></style:style>"
                    "<style:style style:family='text' style:name='Strong'><style:text-properties "
                    "fo:font-weight='bold'/>"
                    "</style:style>")
            .Automatic("paragraph", "style:name='P1' style:parent-style-name='Quote'",
                       "<style:text-properties fo:font-size='9pt'/>")
            .Page("<draw:rect><text:p text:style-name='P1'><text:span "
                  "text:style-name='Strong'>a</text:span></text:p>"
                  "</draw:rect>")
            .Open();

    EXPECT_THAT(AllOwnOf(opened.Object(L"1/1")->GetRuns()[0].GetStyle()),
                ElementsAre("character.posture=italic", "character.size=90", "character.weight=bold",
                            "paragraph.align=center"));
}

TEST(Texts, WithAnUnknownStyleAreReportedOnce)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Page("<draw:rect><text:p text:style-name='P9'>a</text:p>"
                                           "<text:p text:style-name='P9'>b</text:p></draw:rect>")
                                     .Open();

    EXPECT_EQ(opened.Object(L"1/1")->GetParagraphs().size(), 2U);
    EXPECT_THAT(opened.warnings, ElementsAre("style \"P9\": text refers to it, but it does not exist"));
}

TEST(ParagraphStyles, InACycleAreCut)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Styles("<style:style style:family='paragraph' style:name='A' style:parent-style-name='B'/>"
                    "<style:style style:family='paragraph' style:name='B' style:parent-style-name='A'/>")
            .Page("<draw:rect><text:p text:style-name='A'>a</text:p></draw:rect>")
            .Open();

    EXPECT_EQ(opened.Object(L"1/1")->GetRuns().size(), 1U);
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"B\": its parent \"A\" inherits from it; the cycle was cut here"));
}

} // namespace
