#include "tests/reference_host/document/SavedDrawing.h"

#include <gmock/gmock.h>

using OvxUtils::Any;
using ReferenceHost::DrawingObject;
using ReferenceHost::TextUnit;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

/// A rectangle with this text; its shape, its paragraphs and its spans have styles to refer to.
FlatDrawing WithText(const std::string& text, const std::string& attributes = "")
{
    return FlatDrawing()
        .Named("style:name='Base'", "<style:text-properties fo:font-size='14pt'/>")
        .Styles("<style:style style:name='Strong' style:family='text'><style:text-properties"
                " fo:font-weight='bold' fo:letter-spacing='1mm'/></style:style>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                   "<style:text-properties fo:font-size='10pt'/>")
        .Automatic("paragraph", "style:name='P1'", "<style:text-properties fo:font-size='20pt'/>")
        .Automatic("text", "style:name='T1'", "<style:text-properties fo:font-size='30pt'/>")
        .Automatic("text", "style:name='T2'", "<style:text-properties fo:color='#00cc00'/>")
        .Page("<draw:rect draw:style-name='gr1'" + attributes + ">" + text + "</draw:rect>");
}

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

void SetRun(OpenedDrawing& opened, std::size_t run, const std::string& path, const Any& value)
{
    Set(opened.Object(L"1/1")->GetRuns()[run].GetStyle(), path, value);
}

TEST(TextEdits, EditTheStyleOfTheSpan)
{
    const FlatDrawing drawing = WithText("<text:p>a<text:span text:style-name='T1'>b</text:span></text:p>");
    OpenedDrawing opened = drawing.Open();
    SetRun(opened, 1, "character.size", Any(400));

    EXPECT_EQ(Difference(drawing.Text(), Saved(opened)), "3 -> 4");
}

TEST(TextEdits, EditTheStyleOfTheParagraphWhenItsTextAgrees)
{
    OpenedDrawing opened = WithText("<text:p text:style-name='P1'>a</text:p><text:p>b</text:p>").Open();
    SetRun(opened, 0, "character.color", ColourValue(1, 2, 3));

    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("fo:font-size='20pt' fo:color=\"#010203\""));
    EXPECT_THAT(OfRuns(OpenText(saved), "character.color"), ElementsAre("#010203", "-"));
}

TEST(TextEdits, GiveAParagraphAStyleThatHasNone)
{
    OpenedDrawing opened = WithText("<text:p>a</text:p><text:p>b</text:p>").Open();
    SetRun(opened, 1, "character.size", Any(400));

    EXPECT_THAT(Saved(opened), HasSubstr("<text:p>a</text:p><text:p text:style-name=\"P2\">b</text:p>"));
    EXPECT_THAT(OfRuns(Reopened(opened), "character.size"), ElementsAre("100", "400"));
}

TEST(TextEdits, WrapARunWhereItsNeighboursDiffer)
{
    OpenedDrawing opened =
        WithText("<text:p>a &amp; <text:span text:style-name='T2'>b</text:span> c<text:tab/></text:p>")
            .Open();
    SetRun(opened, 2, "character.size", Any(400));

    EXPECT_THAT(Saved(opened),
                HasSubstr("<text:p>a &amp; <text:span text:style-name='T2'>b</text:span>"
                          "<text:span text:style-name=\"T3\"> c<text:tab/></text:span></text:p>"));
    EXPECT_THAT(OfRuns(Reopened(opened), "character.size"), ElementsAre("100", "100", "400"));
}

TEST(TextEdits, ClearAValueFromAllLevels)
{
    OpenedDrawing opened =
        WithText("<text:p text:style-name='P1'>a<text:span text:style-name='T1'>b</text:span></text:p>")
            .Open();
    SetRun(opened, 1, "character.size", Any());
    Set(opened.Object(L"1/1")->GetStyle(), "character.size", Any());

    const OpenedDrawing again = Reopened(opened);

    // The neighbour keeps what it had.
    EXPECT_THAT(OfRuns(again, "character.size"), ElementsAre("200", "-"));
    EXPECT_EQ(OwnOf(again.Object(L"1/1")->GetStyle(), "character.size"), "-");
}

TEST(TextEdits, LeaveOtherShapesOfASharedStyleAlone)
{
    FlatDrawing drawing = WithText("<text:p text:style-name='P1'>a</text:p>");
    drawing.Page("<draw:rect draw:style-name='gr1'><text:p text:style-name='P1'>b</text:p></draw:rect>");
    OpenedDrawing opened = drawing.Open();
    SetRun(opened, 0, "character.size", Any());
    Set(opened.Object(L"1/1")->GetStyle(), "character.size", Any());

    const OpenedDrawing again = Reopened(opened);

    EXPECT_THAT(OfRuns(again, "character.size"), ElementsAre("-"));
    EXPECT_EQ(OwnOf(again.Object(L"2/1")->GetRuns()[0].GetStyle(), "character.size"), "200");
    EXPECT_EQ(OwnOf(again.Object(L"2/1")->GetStyle(), "character.size"), "100");
}

TEST(TextEdits, SplitAParagraphFromTheStyleThatItRepeats)
{
    OpenedDrawing opened =
        WithText("<text:p text:style-name='P1'>a</text:p><text:p>b</text:p>", " draw:text-style-name='P1'")
            .Open();
    SetRun(opened, 0, "character.size", Any(400));

    EXPECT_THAT(OfRuns(Reopened(opened), "character.size"), ElementsAre("400", "200"));
}

TEST(TextEdits, KeepPercentagesOfAStyleThatIsNoLongerRepeated)
{
    FlatDrawing drawing =
        WithText("<text:p text:style-name='P5'>a</text:p><text:p>b</text:p>", " draw:text-style-name='P5'");
    drawing.Automatic("paragraph", "style:name='P5'", "<style:text-properties fo:font-size='50%'/>");
    OpenedDrawing opened = drawing.Open();
    ASSERT_THAT(OfRuns(opened, "character.size"), ElementsAre("50", "50"));
    SetRun(opened, 0, "character.color", ColourValue(1, 2, 3));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_THAT(OfRuns(again, "character.size"), ElementsAre("50", "50"));
    EXPECT_THAT(OfRuns(again, "character.color"), ElementsAre("#010203", "-"));
}

TEST(TextEdits, SetParagraphsAlone)
{
    OpenedDrawing opened =
        WithText("<text:p text:style-name='P1'>a</text:p><text:list><text:list-item><text:p"
                 " text:style-name='P1'>b</text:p></text:list-item></text:list>")
            .Open();
    Set(opened.Object(L"1/1")->GetParagraphs()[1].GetStyle(), "paragraph.left-indent", Any(500));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_THAT(OfParagraphs(again, "paragraph.left-indent"), ElementsAre("-", "500"));
    EXPECT_THAT(OfRuns(again, "character.size"), ElementsAre("200", "200"));
}

TEST(TextEdits, OverrideANamedStyleThatCannotBeEdited)
{
    const std::string text = "<text:p>a<text:span text:style-name='Strong'>b</text:span></text:p>";
    FlatDrawing drawing = WithText(text);
    drawing.Defaults("<style:text-properties fo:font-weight='normal'/>");
    OpenedDrawing opened = drawing.Open();
    SetRun(opened, 1, "character.weight", Any());

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(EffectiveOf(again.Object(L"1/1")->GetRuns()[1].GetStyle(), "character.weight"), "normal");
    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(TextEdits, WarnOfANamedStyleThatCannotBeOverridden)
{
    OpenedDrawing opened =
        WithText("<text:p>a<text:span text:style-name='Strong'>b</text:span></text:p>").Open();
    SetRun(opened, 1, "character.letter-spacing", Any());

    EXPECT_THAT(Saved(opened), HasSubstr("<text:span text:style-name='Strong'>b"));
    EXPECT_THAT(opened.warnings,
                ElementsAre(HasSubstr("style \"Strong\": it sets character.letter-spacing")));
}

TEST(TextEdits, WriteAShapeWithoutTextInItsGraphicStyle)
{
    OpenedDrawing opened = WithText("", " draw:text-style-name='P1'").Open();
    Set(opened.Object(L"1/1")->GetStyle(), "character.color", ColourValue(1, 2, 3));
    Set(opened.Object(L"1/1")->GetStyle(), "character.size", Any(400));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_THAT(AllOwnOf(again.Object(L"1/1")->GetStyle()),
                ElementsAre("character.color=#010203", "character.size=400"));
}

TEST(TextEdits, DoNotTouchTextThatNobodyAskedFor)
{
    const FlatDrawing drawing = WithText("<text:p>a<text:span text:style-name='T1'>b</text:span></text:p>");
    OpenedDrawing opened = drawing.Open();
    static_cast<void>(OfRuns(opened, "character.size"));
    static_cast<void>(OfParagraphs(opened, "paragraph.align"));

    EXPECT_EQ(Saved(opened), drawing.Text());
}

} // namespace
