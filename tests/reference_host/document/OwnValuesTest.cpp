#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

TEST(PercentageOfAFontSize, IsTakenOfTheParents)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Tiny' style:parent-style-name='Small'",
                   "<style:text-properties fo:font-size='50%'/>")
            .Named("style:name='Small' style:parent-style-name='Base'",
                   "<style:text-properties fo:font-size='80%'/>")
            .Named("style:name='Base'", "<style:text-properties fo:font-size='20pt'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"Small"), "character.size"), "160");
    EXPECT_EQ(OwnOf(opened.Named(L"Tiny"), "character.size"), "80");
}

TEST(PercentageOfAFontSize, IsTakenOfTheDefaultStyleInTheEnd)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Defaults("<style:text-properties fo:font-size='24pt'/>")
                                     .Named("style:name='A'", "<style:text-properties fo:font-size='50%'/>")
                                     .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"A"), "character.size"), "120");
}

TEST(PercentageOfAFontSize, CountsAsNotSetWhenThereIsNothingToTakeItOf)
{
    const OpenedDrawing opened =
        FlatDrawing().Named("style:name='A'", "<style:text-properties fo:font-size='50%'/>").Open();

    EXPECT_THAT(AllOwnOf(opened.Named(L"A")), IsEmpty());
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"A\": its font-size is a percentage of what it inherits, which is "
                            "nothing; it counts as not set"));
}

TEST(PercentageOfAFontSize, IsTakenOfTheTextAroundIt)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'", "<style:text-properties fo:font-size='20pt'/>")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='A'", "")
            .Automatic("paragraph", "style:name='P1'", "<style:text-properties fo:font-size='50%'/>")
            .Automatic("text", "style:name='T1'", "<style:text-properties fo:font-size='80%'/>")
            .Page("<draw:rect draw:style-name='gr1'><text:p text:style-name='P1'>a<text:span "
                  "text:style-name='T1'>b"
                  "</text:span></text:p></draw:rect>")
            .Open();

    auto& runs = opened.Object(L"1/1")->GetRuns();

    EXPECT_EQ(OwnOf(runs[0].GetStyle(), "character.size"), "100");
    EXPECT_EQ(OwnOf(runs[1].GetStyle(), "character.size"), "80");
}

TEST(PercentageOfAMargin, IsTakenOfTheParents)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'", "<style:paragraph-properties fo:margin-left='10mm'/>")
            .Named("style:name='B' style:parent-style-name='A'",
                   "<style:paragraph-properties fo:margin-left='25%'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"B"), "paragraph.left-indent"), "250");
}

TEST(ColourOfTheWindow, IsNotSetWhereNoColourIsInherited)
{
    const std::string windowColour = "<style:text-properties style:use-window-font-color='true'/>";
    const OpenedDrawing opened =
        FlatDrawing().Defaults(windowColour).Named("style:name='A'", windowColour).Open();

    EXPECT_EQ(EffectiveOf(opened.Named(L"A"), "character.color"), "-");
}

TEST(ColourOfTheWindow, IsBlackWhereItHidesAColour)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='A'", "<style:text-properties fo:color='#cc0000'/>")
                                     .Named("style:name='B' style:parent-style-name='A'",
                                            "<style:text-properties style:use-window-font-color='true'/>")
                                     .Open();

    EXPECT_EQ(OwnOf(opened.Named(L"B"), "character.color"), "#000000");
}

TEST(ColourOfTheWindow, HidesTheColourBesideIt)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'",
                   "<style:text-properties fo:color='#cc0000' style:use-window-font-color='true'/>")
            .Named("style:name='B'",
                   "<style:text-properties fo:color='#cc0000' style:use-window-font-color='false'/>")
            .Open();

    EXPECT_EQ(EffectiveOf(opened.Named(L"A"), "character.color"), "-");
    EXPECT_EQ(EffectiveOf(opened.Named(L"B"), "character.color"), "#cc0000");
}

TEST(ColourOfTheWindow, OfASpanHidesTheColourOfItsParagraph)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Automatic("paragraph", "style:name='P1'", "<style:text-properties fo:color='#cc0000'/>")
            .Automatic("text", "style:name='T1'",
                       "<style:text-properties style:use-window-font-color='true'/>")
            .Page("<draw:rect><text:p text:style-name='P1'><text:span "
                  "text:style-name='T1'>a</text:span></text:p>"
                  "</draw:rect>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Object(L"1/1")->GetRuns()[0].GetStyle(), "character.color"), "#000000");
}

} // namespace
