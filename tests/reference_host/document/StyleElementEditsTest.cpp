#include "tests/reference_host/document/SavedDrawing.h"

#include "host/colour/CLR_COLORSPEC.h"

#include <gmock/gmock.h>

using OvxUtils::Any;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

/// What an edit of the one rectangle does to the bytes.
std::string DifferenceBy(const FlatDrawing& drawing, const std::string& path, const Any& value)
{
    OpenedDrawing opened = drawing.Open();
    Set(opened.Object(L"1/1")->GetStyle(), path, value);
    return Difference(drawing.Text(), Saved(opened));
}

std::string DifferenceInElement(const std::string& element, const std::string& path, const Any& value)
{
    return DifferenceBy(OneRectangle(element), path, value);
}

TEST(PropertyEdits, ChangeAValueInPlace)
{
    EXPECT_EQ(DifferenceInElement("<style:graphic-properties  draw:fill-color = '#111111'\n draw:odd='x' />",
                                  "fill.color", ColourValue(0x22, 0x11, 0x11)),
              "11 -> 22");
}

TEST(PropertyEdits, AddAnAttributeBehindTheOthers)
{
    EXPECT_EQ(DifferenceInElement("<style:graphic-properties draw:odd='x'/>", "outline.width", Any(50)),
              " ->  svg:stroke-width=\"0.5mm\"");
}

TEST(PropertyEdits, RemoveAnAttributeWithTheBlankBefore)
{
    EXPECT_EQ(
        DifferenceInElement("<style:graphic-properties draw:odd='x' svg:stroke-width='1mm' draw:b='y'/>",
                            "outline.width", Any()),
        "svg:stroke-width='1mm'  -> ");
}

TEST(PropertyEdits, InsertAMissingElementInTheOrderOfTheSchema)
{
    const std::string graphic = "<style:graphic-properties draw:odd='x'/>";
    const std::string text = "<style:text-properties fo:odd='x'/>";

    EXPECT_THAT(DifferenceInElement(graphic + text, "paragraph.left-indent", Any(100)),
                HasSubstr("paragraph-properties fo:margin-left=\"1mm\"/><style:"));
    EXPECT_EQ(DifferenceInElement(text, "fill.transparency", Any(30)),
              " -> graphic-properties draw:opacity=\"70%\"/><style:");
    EXPECT_EQ(DifferenceInElement("<x:map xmlns:x='urn:x'/>", "character.size", Any(120)),
              " -> style:text-properties fo:font-size=\"12pt\"/><");
}

TEST(PropertyEdits, SplitAShorthand)
{
    EXPECT_EQ(DifferenceInElement("<style:paragraph-properties fo:margin='1mm 2mm 3mm 50%'"
                                  " fo:margin-top='9mm'/>",
                                  "paragraph.right-indent", Any(700)),
              "='1mm 2mm 3mm 50%' fo:margin-top='9mm' -> -top='9mm' fo:margin-right=\"7mm\""
              " fo:margin-left=\"50%\" fo:margin-bottom=\"3mm\"");
}

TEST(PropertyEdits, ClearOneSideOfAShorthand)
{
    OpenedDrawing opened = OneRectangle("<style:paragraph-properties fo:margin='1mm'/>").Open();
    Set(opened.Object(L"1/1")->GetStyle(), "paragraph.left-indent", Any());

    const OpenedDrawing again = Reopened(opened);

    EXPECT_THAT(
        AllOwnOf(again.Object(L"1/1")->GetStyle()),
        ElementsAre("paragraph.right-indent=100", "paragraph.space-after=100", "paragraph.space-before=100"));
}

TEST(PropertyEdits, NameAFaceWhereOneDeclaresTheFont)
{
    FlatDrawing drawing = OneRectangle("<style:text-properties fo:font-family='Old'/>");
    drawing.Fonts("<style:font-face style:name='F1' svg:font-family=\"'DejaVu Sans'\"/>");

    EXPECT_EQ(DifferenceBy(drawing, "character.font", TextValue(L"DejaVu Sans")),
              "fo:font-family='Old' -> style:font-name=\"F1\"");
    EXPECT_EQ(DifferenceBy(drawing, "character.font", TextValue(L"Other Font")),
              "Old -> &apos;Other Font&apos;");
}

TEST(PropertyEdits, EndTheColourOfTheWindow)
{
    EXPECT_EQ(DifferenceInElement("<style:text-properties style:use-window-font-color='true'/>",
                                  "character.color", ColourValue(1, 2, 3)),
              "true' -> false' fo:color=\"#010203\"");
}

TEST(PropertyEdits, LinkAColourToThePalette)
{
    FlatDrawing drawing = OneRectangle("<style:graphic-properties draw:fill-color='#010203'/>");
    drawing.Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#010203</meta:user-defined>");
    const Any link(CLR_COLORSPEC::FromResource(L"Sea", {1, 2, 3}));

    EXPECT_EQ(DifferenceBy(drawing, "fill.color", link), " ->  sp:fill-color-resource=\"Sea\"");
}

TEST(PropertyEdits, TakeALinkAwayWithItsColour)
{
    FlatDrawing drawing =
        OneRectangle("<style:graphic-properties draw:fill-color='#010203' sp:fill-color-resource='Sea'/>");
    drawing.Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#010203</meta:user-defined>");

    EXPECT_EQ(DifferenceBy(drawing, "fill.color", ColourValue(1, 2, 3)), " sp:fill-color-resource='Sea' -> ");
    EXPECT_EQ(DifferenceBy(drawing, "fill.color", Any()),
              " draw:fill-color='#010203' sp:fill-color-resource='Sea' -> ");
}

TEST(PropertyEdits, WriteAPercentageAsWhatItWasWhenTheParentChanges)
{
    FlatDrawing drawing = OneRectangle("");
    drawing.Named("style:name='Base'", "<style:text-properties fo:font-size='20pt'/>")
        .Named("style:name='Half' style:parent-style-name='Base'",
               "<style:text-properties fo:font-size='50%'/>");
    OpenedDrawing opened = drawing.Open();
    Set(opened.Named(L"Base"), "character.size", Any(400));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(OwnOf(again.Named(L"Half"), "character.size"), "100");
}

TEST(PropertyEdits, WarnOfWhatDrawingsCannotHold)
{
    OpenedDrawing opened = OneRectangle("<style:graphic-properties draw:opacity='50%'/>").Open();
    Set(opened.Object(L"1/1")->GetStyle(), "fill.transparency", Any(170));

    EXPECT_THAT(Saved(opened), HasSubstr("draw:opacity='50%'"));
    EXPECT_THAT(opened.warnings, ElementsAre(HasSubstr("fill.transparency has no form in drawings")));
}

} // namespace
