#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// An attribute as it may stand in a drawing, and what it means.
struct WrittenProperty
{
    const char* element;
    const char* attribute;
    const char* path;
    const char* value;
};

void PrintTo(const WrittenProperty& property, std::ostream* stream)
{
    *stream << property.attribute;
}

class WrittenProperties : public testing::TestWithParam<WrittenProperty>
{
};

TEST_P(WrittenProperties, AreOwnValuesOfTheirStyle)
{
    const WrittenProperty& property = GetParam();
    const OpenedDrawing opened =
        FlatDrawing()
            .Fonts("<style:font-face style:name='F1' svg:font-family=\"'DejaVu Sans'\"/>")
            .Named("style:name='A'",
                   std::string("<style:") + property.element + " " + property.attribute + "/>")
            .Open();

    EXPECT_THAT(AllOwnOf(opened.Named(L"A")), ElementsAre(std::string(property.path) + "=" + property.value));
    EXPECT_THAT(opened.warnings, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Fill, WrittenProperties,
    testing::Values(
        WrittenProperty{"graphic-properties", "draw:fill='none'", "fill.type", "none"},
        WrittenProperty{"graphic-properties", "draw:fill='solid'", "fill.type", "solid"},
        WrittenProperty{"graphic-properties", "draw:fill='bitmap'", "fill.type", "bitmap"},
        WrittenProperty{"graphic-properties", "draw:fill='gradient'", "fill.type", "gradient"},
        WrittenProperty{"graphic-properties", "draw:fill='hatch'", "fill.type", "hatch"},
        WrittenProperty{"graphic-properties", "draw:fill-color='#3366cc'", "fill.color", "#3366cc"},
        WrittenProperty{"graphic-properties", "draw:opacity='70%'", "fill.transparency", "30"},
        WrittenProperty{"graphic-properties", "draw:fill-gradient-name='G_20_1'", "fill.gradient", "\"G 1\""},
        WrittenProperty{"graphic-properties", "draw:fill-hatch-name='H'", "fill.hatch", "\"H\""},
        WrittenProperty{"graphic-properties", "draw:fill-image-name='B'", "fill.bitmap", "\"B\""}));

INSTANTIATE_TEST_SUITE_P(
    Outline, WrittenProperties,
    testing::Values(
        WrittenProperty{"graphic-properties", "draw:stroke='dash'", "outline.type", "dash"},
        WrittenProperty{"graphic-properties", "svg:stroke-color='#000001'", "outline.color", "#000001"},
        WrittenProperty{"graphic-properties", "svg:stroke-width='0.05cm'", "outline.width", "50"},
        WrittenProperty{"graphic-properties", "svg:stroke-opacity='0.25'", "outline.transparency", "75"},
        WrittenProperty{"graphic-properties", "draw:stroke-dash='Fine_20_Dots'", "outline.dash",
                        "\"Fine Dots\""},
        WrittenProperty{"graphic-properties", "draw:stroke-linejoin='bevel'", "outline.join", "bevel"},
        WrittenProperty{"graphic-properties", "svg:stroke-linecap='square'", "outline.cap", "square"},
        WrittenProperty{"graphic-properties", "draw:marker-start='Arrow'", "outline.start-arrow",
                        "\"Arrow\""},
        WrittenProperty{"graphic-properties", "draw:marker-end=''", "outline.end-arrow", "\"\""}));

INSTANTIATE_TEST_SUITE_P(
    Paragraph, WrittenProperties,
    testing::Values(
        WrittenProperty{"paragraph-properties", "fo:text-align='justify'", "paragraph.align", "justify"},
        WrittenProperty{"paragraph-properties", "fo:margin-left='1cm'", "paragraph.left-indent", "1000"},
        WrittenProperty{"paragraph-properties", "fo:margin-right='1mm'", "paragraph.right-indent", "100"},
        WrittenProperty{"paragraph-properties", "fo:text-indent='-0.6cm'", "paragraph.first-line-indent",
                        "-600"},
        WrittenProperty{"paragraph-properties", "fo:margin-top='0.42cm'", "paragraph.space-before", "420"},
        WrittenProperty{"paragraph-properties", "fo:margin-bottom='0.21cm'", "paragraph.space-after", "210"},
        WrittenProperty{"paragraph-properties", "fo:line-height='150%'", "paragraph.line-spacing", "150"},
        WrittenProperty{"paragraph-properties", "fo:line-height='0.5cm'", "paragraph.line-spacing",
                        "\"5mm\""}));

INSTANTIATE_TEST_SUITE_P(
    Character, WrittenProperties,
    testing::Values(
        WrittenProperty{"text-properties", "style:font-name='F1'", "character.font", "\"DejaVu Sans\""},
        WrittenProperty{"text-properties", "fo:font-family='Arial'", "character.font", "\"Arial\""},
        WrittenProperty{"text-properties", "fo:font-size='10.5pt'", "character.size", "105"},
        WrittenProperty{"text-properties", "fo:font-weight='bold'", "character.weight", "bold"},
        WrittenProperty{"text-properties", "fo:font-weight='700'", "character.weight", "bold"},
        WrittenProperty{"text-properties", "fo:font-weight='400'", "character.weight", "normal"},
        WrittenProperty{"text-properties", "fo:font-weight='300'", "character.weight", "300"},
        WrittenProperty{"text-properties", "fo:font-style='italic'", "character.posture", "italic"},
        WrittenProperty{"text-properties", "style:text-underline-style='wave'", "character.underline",
                        "wave"},
        WrittenProperty{"text-properties", "style:text-line-through-style='solid'", "character.strikethrough",
                        "solid"},
        WrittenProperty{"text-properties", "fo:color='#CC0000'", "character.color", "#cc0000"},
        WrittenProperty{"text-properties", "fo:letter-spacing='0.05cm'", "character.letter-spacing", "50"},
        WrittenProperty{"text-properties", "fo:letter-spacing='normal'", "character.letter-spacing", "0"}));

TEST(Margins, GiveAllFourSidesToParagraphs)
{
    const OpenedDrawing opened =
        FlatDrawing().Named("style:name='A'", "<style:paragraph-properties fo:margin='2mm'/>").Open();

    EXPECT_THAT(AllOwnOf(opened.Named(L"A")),
                ElementsAre("paragraph.left-indent=200", "paragraph.right-indent=200",
                            "paragraph.space-after=200", "paragraph.space-before=200"));
}

TEST(Margins, GiveWayToTheMarginOfOneSide)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'", "<style:paragraph-properties fo:margin-left='7mm' fo:margin='2mm'/>")
            .Named("style:name='B'", "<style:paragraph-properties fo:margin='2mm' fo:margin-left='7mm'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"A"), "paragraph.left-indent"), "700");
    EXPECT_EQ(OwnOf(opened.Named(L"B"), "paragraph.left-indent"), "700");
    EXPECT_EQ(OwnOf(opened.Named(L"B"), "paragraph.right-indent"), "200");
}

TEST(Fonts, AreFirstTheFaceAndThenTheFamily)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Fonts("<style:font-face style:name='F1' svg:font-family='Face'/><style:font-face "
                   "style:name='Bare'/>")
            .Named("style:name='A'", "<style:text-properties fo:font-family='Family' style:font-name='F1'/>")
            .Named("style:name='B'",
                   "<style:text-properties fo:font-family='Family' style:font-name='Gone'/>")
            .Named("style:name='C'", "<style:text-properties style:font-name='Bare'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"A"), "character.font"), "\"Face\"");
    EXPECT_EQ(OwnOf(opened.Named(L"B"), "character.font"), "\"Family\"");
    EXPECT_EQ(OwnOf(opened.Named(L"C"), "character.font"), "\"Bare\"");
}

TEST(Definitions, LendTheirDisplayNamesToWhatRefersToThem)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'",
                   "<style:graphic-properties draw:fill-gradient-name='N' draw:fill-hatch-name='N'"
                   " draw:fill-image-name='N' draw:stroke-dash='N' draw:marker-start='N' "
                   "draw:marker-end='M_31_'/>")
            .Styles("<draw:gradient draw:name='N' draw:display-name='A gradient'/>"
                    "<draw:hatch draw:name='N' draw:display-name='A hatch'/>"
                    "<draw:fill-image draw:name='N' draw:display-name='An image'/>"
                    "<draw:stroke-dash draw:name='N' draw:display-name='A dash'/>"
                    "<draw:marker draw:name='N' draw:display-name='A marker'/>")
            .Open();

    const Styles::Style* const style = opened.Named(L"A");

    EXPECT_EQ(OwnOf(style, "fill.gradient"), "\"A gradient\"");
    EXPECT_EQ(OwnOf(style, "fill.hatch"), "\"A hatch\"");
    EXPECT_EQ(OwnOf(style, "fill.bitmap"), "\"An image\"");
    EXPECT_EQ(OwnOf(style, "outline.dash"), "\"A dash\"");
    EXPECT_EQ(OwnOf(style, "outline.start-arrow"), "\"A marker\"");
    EXPECT_EQ(OwnOf(style, "outline.end-arrow"), "\"M_31_\"");
}

TEST(MalformedProperties, CountAsNotSetAndAreReported)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named(
                "style:name='My_20_Style'",
                "<style:graphic-properties draw:fill='plaid' draw:fill-color='red' svg:stroke-width='thin'/>")
            .Open();

    EXPECT_THAT(AllOwnOf(opened.Named(L"My Style")), IsEmpty());
    EXPECT_THAT(
        opened.warnings,
        ElementsAre("style \"My Style\": \"plaid\" is no value for draw:fill; it counts as not set",
                    "style \"My Style\": \"red\" is no value for draw:fill-color; it counts as not set",
                    "style \"My Style\": \"thin\" is no value for svg:stroke-width; it counts as not set"));
}

TEST(MalformedProperties, OfTheDefaultStyleAreReportedUnderItsName)
{
    const OpenedDrawing opened =
        FlatDrawing().Defaults("<style:graphic-properties draw:fill='plaid'/>").Open();

    EXPECT_THAT(opened.warnings,
                ElementsAre("default style: \"plaid\" is no value for draw:fill; it counts as not set"));
}

TEST(InheritedProperties, MayBeWrittenAsSuch)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'", "<style:graphic-properties draw:stroke-linejoin='inherit'/>")
            .Open();

    EXPECT_THAT(AllOwnOf(opened.Named(L"A")), IsEmpty());
    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(Properties, OfOtherNamespacesAndElementsDoNotCount)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'",
                   "<style:graphic-properties svg:fill='solid' fill='solid' fo:color='#ffffff'>"
                   "<style:text-properties fo:color='#ffffff'/></style:graphic-properties>"
                   "<draw:graphic-properties draw:fill='solid'/>"
                   "<style:text-properties draw:fill='solid'/>")
            .Open();

    EXPECT_THAT(AllOwnOf(opened.Named(L"A")), IsEmpty());
}

TEST(PaletteColours, ReferToTheirEntry)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Deep Sea'>#2a6f97</meta:user-defined>")
            .Named("style:name='A'",
                   "<style:graphic-properties draw:fill-color='#2a6f97' sp:fill-color-resource='Deep Sea'"
                   " svg:stroke-color='#2a6f97'/><style:text-properties sp:color-resource='Deep Sea' "
                   "fo:color='#2A6F97'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"A"), "fill.color"), "#2a6f97@Deep Sea");
    EXPECT_EQ(OwnOf(opened.Named(L"A"), "outline.color"), "#2a6f97");
    EXPECT_EQ(OwnOf(opened.Named(L"A"), "character.color"), "#2a6f97@Deep Sea");
    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(PaletteColours, ThatReferToNothingArePlainColours)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'",
                   "<style:graphic-properties draw:fill-color='#2a6f97' sp:fill-color-resource='Sea'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"A"), "fill.color"), "#2a6f97");
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"A\": its fill-color names the palette entry \"Sea\", which does "
                            "not exist; the colour itself counts"));
}

TEST(PaletteColours, ThatAnotherProgramChangedArePlainColours)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#2a6f97</meta:user-defined>")
            .Named("style:name='A'",
                   "<style:graphic-properties draw:fill-color='#ff0000' sp:fill-color-resource='Sea'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"A"), "fill.color"), "#ff0000");
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"A\": its fill-color names the palette entry \"Sea\", which looks "
                            "different; the colour itself counts"));
}

TEST(PaletteColours, NeedTheColourItself)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#2a6f97</meta:user-defined>")
            .Named("style:name='A'", "<style:graphic-properties sp:fill-color-resource='Sea'/>")
            .Open();

    EXPECT_THAT(AllOwnOf(opened.Named(L"A")), IsEmpty());
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"A\": its fill-color names the palette entry \"Sea\", but the "
                            "colour itself is missing; the name was passed over"));
}

} // namespace
