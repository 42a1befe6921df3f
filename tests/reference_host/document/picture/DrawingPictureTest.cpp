#include "tests/reference_host/document/picture/ContourText.h"
#include "tests/reference_host/document/picture/ShownDrawing.h"

#include "tests/reference_host/document/DrawingPackage.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{

using testing::ElementsAre;

TEST(DrawingPicture, HasTheShapesOfAllPagesInOrder)
{
    const ShownDrawing drawing(
        FlatDrawing()
            .Page("<draw:rect/><draw:g><draw:ellipse/><draw:g><draw:line/></draw:g></draw:g>")
            .Page("<draw:a><draw:rect/></draw:a>")
            .Open());

    ASSERT_EQ(drawing.picture.pages.size(), 2U);
    std::vector<std::wstring> ids;
    for (const ReferenceHost::PagePicture& page : drawing.picture.pages)
    {
        for (const ReferenceHost::ShapePicture& shape : page.shapes)
            ids.push_back(shape.object->GetId().Wide());
    }
    EXPECT_THAT(ids, ElementsAre(L"1/1", L"1/2/1", L"1/2/2/1", L"2/1"));
}

TEST(DrawingPicture, LeavesStylesAlone)
{
    const ShownDrawing drawing = ShowShapes("<draw:rect><text:p>text</text:p></draw:rect>");

    EXPECT_EQ(drawing.Shape().object->FindStyle(), nullptr);
}

TEST(DrawingPicture, MeasuresPagesByTheirMasters)
{
    std::string text = FlatDrawing().Page("").Text();
    const std::string page = "<draw:page";
    text.insert(text.find(page) + page.size(), R"( draw:master-page-name="M")");
    const std::string styles = "<office:automatic-styles>";
    text.insert(text.find(styles) + styles.size(),
                R"(<style:page-layout style:name="L"><style:page-layout-properties fo:page-width="10cm")"
                R"( fo:page-height="5cm"/></style:page-layout>)");
    text.insert(text.find("<office:body>"), R"(<office:master-styles><style:master-page style:name="M")"
                                            R"( style:page-layout-name="L"/></office:master-styles>)");

    const ShownDrawing drawing(OpenText(text));

    EXPECT_DOUBLE_EQ(drawing.picture.pages[0].width, 10000);
    EXPECT_DOUBLE_EQ(drawing.picture.pages[0].height, 5000);
}

TEST(DrawingPicture, TakesPagesWithoutASizeForUsualOnes)
{
    const ShownDrawing drawing = ShowShapes("");

    EXPECT_DOUBLE_EQ(drawing.picture.pages[0].width, 21000);
    EXPECT_DOUBLE_EQ(drawing.picture.pages[0].height, 29700);
}

TEST(DrawingPicture, TellsWhatRunsSay)
{
    const ShownDrawing drawing = ShowShapes(
        "<draw:rect><text:p>one <text:span> two</text:span></text:p><text:p/>"
        "<text:p>a<text:s text:c=\"3\"/>b<text:tab/>c<text:line-break/> d\n   e</text:p></draw:rect>");

    EXPECT_THAT(drawing.Shape().runTexts, ElementsAre(OvxStringT(L"one "), OvxStringT(L"two"), OvxStringT(),
                                                      OvxStringT(L"a   b\tc\nd e")));
    EXPECT_EQ(drawing.Shape().object->GetRuns().size(), 4U);
}

TEST(DrawingPicture, TellsWhatFieldsSay)
{
    const ShownDrawing drawing =
        ShowShapes("<draw:rect><text:p>page <text:page-number>7</text:page-number></text:p></draw:rect>");

    EXPECT_THAT(drawing.Shape().runTexts, ElementsAre(OvxStringT(L"page 7")));
}

TEST(DrawingPicture, HoldsPicturesThatStandInTheText)
{
    const ShownDrawing drawing =
        ShowShapes("<draw:frame svg:width=\"1cm\" svg:height=\"1cm\"><draw:image><office:binary-data>c3R5bGU="
                   "</office:binary-data></draw:image></draw:frame>");

    ASSERT_NE(drawing.Shape().image, nullptr);
    EXPECT_EQ(*drawing.Shape().image, "style");
}

TEST(DrawingPicture, HoldsPicturesOfThePackageOnce)
{
    const std::string frame = R"(<draw:frame><draw:image xlink:href="Pictures/a.png"/></draw:frame>)";
    const FlatDrawing drawing = FlatDrawing().Page(frame + frame);
    const std::string package = ZipBuilder()
                                    .Add("mimetype", "application/vnd.oasis.opendocument.graphics")
                                    .Add("content.xml", drawing.ContentText(), ZipBuilder::Packing::Deflated)
                                    .Add("styles.xml", drawing.StylesText(), ZipBuilder::Packing::Deflated)
                                    .Add("Pictures/a.png", "bytes")
                                    .Build();

    const ShownDrawing shown(OpenText(package));

    ASSERT_NE(shown.Shape(0).image, nullptr);
    EXPECT_EQ(*shown.Shape(0).image, "bytes");
    EXPECT_EQ(shown.Shape(0).image, shown.Shape(1).image);
}

TEST(DrawingPicture, HasNoPictureWhereNoneIs)
{
    const ShownDrawing drawing =
        ShowShapes(R"(<draw:frame><draw:image xlink:href="../other.png"/></draw:frame>)");

    EXPECT_EQ(drawing.Shape().image, nullptr);
}

TEST(DrawingPicture, ReadsPackagesLikeFlatFiles)
{
    const FlatDrawing drawing = FlatDrawing()
                                    .Styles(R"(<draw:marker draw:name="A" svg:d="M0 0h10v10z"/>)")
                                    .Page(R"(<draw:rect svg:width="1cm" svg:height="1cm"/>)");

    const ShownDrawing shown(OpenText(PackageOf(drawing)));

    EXPECT_THAT(PartsOnPage(shown.Shape()), ElementsAre("M0,0 L1000,0 L1000,1000 L0,1000 Z"));
    EXPECT_EQ(shown.picture.definitions.markers.count(L"A"), 1U);
}

TEST(DrawingPicture, IsWhatTheFileSaysAfterEdits)
{
    const ShownDrawing drawing = ShowShapes(R"(<draw:rect svg:width="1cm" svg:height="1cm"/>)");
    drawing.opened.drawing->AddStyle(drawing.opened.drawing->GetCategories().front(), L"New");

    EXPECT_EQ(drawing.opened.drawing->ReadPicture().pages.at(0).shapes.size(), 1U);
}

/// A drawing whose page of 10 by 5 cm has margins of 1 cm, with a style of its own and one of its master.
ReferenceHost::PageBackground BackgroundOf(const std::string& ofPage, const std::string& ofMaster)
{
    const auto style = [](const std::string& name, const std::string& properties)
    {
        return "<style:style style:name=\"" + name + R"(" style:family="drawing-page">)" +
               "<style:drawing-page-properties " + properties + "/></style:style>";
    };
    std::string text =
        FlatDrawing()
            .Automatic(style("dp1", ofPage) + style("Mdp1", ofMaster) +
                       R"(<style:page-layout style:name="L"><style:page-layout-properties fo:margin="1cm")"
                       R"( fo:page-width="10cm" fo:page-height="5cm"/></style:page-layout>)")
            .Page("")
            .Text();
    const std::string page = "<draw:page";
    text.insert(text.find(page) + page.size(), R"( draw:style-name="dp1" draw:master-page-name="M")");
    text.insert(text.find("<office:body>"),
                R"(<office:master-styles><style:master-page style:name="M" style:page-layout-name="L")"
                R"( draw:style-name="Mdp1"/></office:master-styles>)");
    return ShownDrawing(OpenText(text)).picture.pages.at(0).background;
}

TEST(PageBackgrounds, AreThoseOfTheMasterWithinTheMargins)
{
    const auto background =
        BackgroundOf("", R"(draw:fill="solid" draw:fill-color="#102030" draw:opacity="70%")");

    EXPECT_EQ(background.kind, ReferenceHost::PageBackground::Kind::Solid);
    EXPECT_EQ(background.colour, (CLR_COLORSPEC::Rgb{0x10, 0x20, 0x30}));
    EXPECT_EQ(background.transparency, 30);
    EXPECT_EQ(background.box, (ReferenceHost::Box{1000, 1000, 8000, 3000}));
}

TEST(PageBackgrounds, AreThoseOfThePageFirst)
{
    const auto background = BackgroundOf(
        R"(draw:fill="gradient" draw:fill-gradient-name="Deep_20_Sea" draw:background-size="full")",
        R"(draw:fill="solid" draw:fill-color="#102030")");

    EXPECT_EQ(background.kind, ReferenceHost::PageBackground::Kind::Gradient);
    EXPECT_EQ(background.definition, OvxStringT(L"Deep Sea"));
    EXPECT_EQ(background.box, (ReferenceHost::Box{0, 0, 10000, 5000}));
}

TEST(PageBackgrounds, AreNothingWithoutAFill)
{
    EXPECT_EQ(BackgroundOf("", "").kind, ReferenceHost::PageBackground::Kind::None);
}

TEST(Placeholders, NameWhatCannotBeShown)
{
    const auto placeholderOf = [](const std::string& shape) { return ShowShapes(shape).Shape().placeholder; };

    EXPECT_EQ(placeholderOf(R"(<draw:frame draw:name="Sales"><draw:object/></draw:frame>)"),
              OvxStringT(L"Sales"));
    EXPECT_EQ(placeholderOf(R"(<draw:frame><draw:image xlink:href="Pictures/a.wmf"/></draw:frame>)"),
              OvxStringT(L"a.wmf"));
    EXPECT_EQ(placeholderOf("<draw:frame><draw:object/></draw:frame>"), OvxStringT(L"object"));
    EXPECT_EQ(placeholderOf("<draw:control/>"), OvxStringT(L"control"));
}

TEST(Placeholders, AreNotForTextAndShapes)
{
    EXPECT_EQ(ShowShapes(R"(<draw:frame draw:name="T"><draw:text-box/></draw:frame>)").Shape().placeholder,
              OvxStringT());
    EXPECT_EQ(ShowShapes(R"(<draw:rect draw:name="R"/>)").Shape().placeholder, OvxStringT());
}

} // namespace
