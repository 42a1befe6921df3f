#include "tests/reference_host/document/FlatDrawing.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

using ReferenceHost::DrawingObject;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::wstring KindOf(const OpenedDrawing& opened, const std::wstring& id)
{
    return std::wstring(opened.Object(id)->GetKind());
}

TEST(Objects, AreNumberedWithinTheirPages)
{
    const OpenedDrawing opened = FlatDrawing().Page("<draw:rect/><draw:line/>").Page("<draw:circle/>").Open();

    EXPECT_THAT(opened.Ids(), ElementsAre(L"1/1", L"1/2", L"2/1"));
}

TEST(Objects, AreNumberedWithinTheirGroups)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Page("<draw:rect/><draw:g><draw:rect/><draw:g><draw:line/></"
                                           "draw:g><draw:rect/></draw:g><draw:rect/>")
                                     .Open();

    EXPECT_THAT(opened.Ids(), ElementsAre(L"1/1", L"1/2", L"1/2/1", L"1/2/2", L"1/2/2/1", L"1/2/3", L"1/3"));
    EXPECT_EQ(opened.Object(L"1/2/2/1")->GetGroup(), opened.Object(L"1/2/2"));
    EXPECT_THAT(opened.Object(L"1/2")->GetMembers(),
                ElementsAre(opened.Object(L"1/2/1"), opened.Object(L"1/2/2"), opened.Object(L"1/2/3")));
}

TEST(Objects, AloneCountInTheirNumbers)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Page("<office:forms/><draw:layer-set/><draw:rect><svg:title>x</svg:title><draw:glue-point/>"
                  "<text:p/></draw:rect><office:annotation><text:p/></office:annotation>"
                  "<draw:g><svg:desc/><draw:glue-point/><draw:rect/></draw:g><draw:future-shape/>")
            .Open();

    EXPECT_THAT(opened.Ids(), ElementsAre(L"1/1", L"1/2", L"1/2/1"));
}

TEST(Objects, AreFoundBehindLinks)
{
    const OpenedDrawing opened =
        FlatDrawing().Page("<draw:rect/><draw:a xlink:href='x'><draw:ellipse/></draw:a><draw:line/>").Open();

    EXPECT_THAT(opened.Ids(), ElementsAre(L"1/1", L"1/2", L"1/3"));
    EXPECT_EQ(KindOf(opened, L"1/2"), L"ellipse");
    EXPECT_EQ(opened.Object(L"1/2")->GetGroup(), nullptr);
}

TEST(Objects, OnMasterPagesAreLeftOut)
{
    std::string text = FlatDrawing().Page("<draw:rect/>").Text();
    const std::string body = "<office:body>";
    text.insert(text.find(body), "<office:master-styles><style:master-page><draw:rect/></style:master-page>"
                                 "</office:master-styles>");

    EXPECT_NE(text.find("master-page"), std::string::npos);
    EXPECT_THAT(OpenText(text).Ids(), ElementsAre(L"1/1"));
}

class Kinds : public testing::TestWithParam<const char*>
{
};

TEST_P(Kinds, AreTheNamesOfTheirElements)
{
    const std::string element = GetParam();
    const OpenedDrawing opened = FlatDrawing().Page("<draw:" + element + "/>").Open();

    EXPECT_EQ(KindOf(opened, L"1/1"), std::wstring(element.begin(), element.end()));
    EXPECT_FALSE(opened.Object(L"1/1")->IsGroup());
    EXPECT_NE(opened.Object(L"1/1")->GetStyle(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(OfShapes, Kinds,
                         testing::Values("rect", "line", "polyline", "polygon", "regular-polygon", "path",
                                         "circle", "ellipse", "page-thumbnail", "frame", "measure", "caption",
                                         "connector", "control", "custom-shape"));

TEST(Scenes, AreOneObjectEach)
{
    const OpenedDrawing opened =
        FlatDrawing().Page("<dr3d:scene><dr3d:cube/><dr3d:sphere/></dr3d:scene>").Open();

    EXPECT_THAT(opened.Ids(), ElementsAre(L"1/1"));
    EXPECT_EQ(KindOf(opened, L"1/1"), L"scene");
}

TEST(Groups, HaveNoStyleAndMayBeEmpty)
{
    const OpenedDrawing opened = FlatDrawing().Page("<draw:g draw:name='Nothing'/>").Open();
    DrawingObject* const group = opened.Object(L"1/1");

    EXPECT_TRUE(group->IsGroup());
    EXPECT_EQ(KindOf(opened, L"1/1"), L"group");
    EXPECT_EQ(group->GetName(), OvxStringT(L"Nothing"));
    EXPECT_EQ(group->GetStyle(), nullptr);
    EXPECT_THAT(group->GetMembers(), IsEmpty());
}

TEST(Objects, KeepTheirNamesAsTheyAre)
{
    const OpenedDrawing opened =
        FlatDrawing().Page("<draw:rect draw:name='a_20_b &#228;'/><draw:rect/>").Open();

    EXPECT_EQ(opened.Object(L"1/1")->GetName(), OvxStringT(L"a_20_b \u00e4"));
    EXPECT_EQ(opened.Object(L"1/2")->GetName(), OvxStringT());
}

TEST(Pages, KnowTheirNumbersNamesAndObjects)
{
    std::string text = FlatDrawing().Page("<draw:rect/><draw:g><draw:rect/></draw:g>").Page("").Text();
    text.replace(text.find("<draw:page>"), 11, "<draw:page draw:name='Overview'>");

    const OpenedDrawing opened = OpenText(text);
    const auto& pages = opened.drawing->GetPages();

    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].number, 1U);
    EXPECT_EQ(pages[0].name, OvxStringT(L"Overview"));
    EXPECT_THAT(pages[0].objects, ElementsAre(opened.Object(L"1/1"), opened.Object(L"1/2")));
    EXPECT_EQ(pages[1].number, 2U);
    EXPECT_THAT(pages[1].objects, IsEmpty());
    EXPECT_EQ(&opened.Object(L"1/2/1")->GetPage(), &pages[0]);
}

TEST(Shapes, OwnAWholeStyleWithTheValuesOfTheirAutomaticStyle)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Base'",
                   "<style:graphic-properties draw:fill-color='#eeeeee' svg:stroke-width='1mm'/>")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                       "<style:graphic-properties draw:fill-color='#00aa00'/>"
                       "<style:paragraph-properties fo:text-align='end'/><style:text-properties "
                       "fo:font-size='9pt'/>")
            .Page("<draw:rect draw:style-name='gr1'/>")
            .Open();

    const Styles::Style* const style = opened.Object(L"1/1")->GetStyle();

    EXPECT_EQ(style->GetCategoryName(), Styles::StyleCategoryName);
    EXPECT_EQ(opened.ParentOf(style), L"Base");
    EXPECT_THAT(AllOwnOf(style),
                ElementsAre("character.size=90", "fill.color=#00aa00", "paragraph.align=end"));
    EXPECT_EQ(EffectiveOf(style, "outline.width"), "100");
}

TEST(Shapes, HoldTheirFourSubstylesEvenWhenTheyAreEmpty)
{
    const OpenedDrawing opened = FlatDrawing().Page("<draw:rect/>").Open();

    const Styles::Style* const style = opened.Object(L"1/1")->GetStyle();

    for (const Styles::PropertyKey& category :
         {Styles::FillStyleCategoryName, Styles::OutlineStyleCategoryName,
          Styles::GetParagraphStyleCategoryName(), Styles::GetCharacterStyleCategoryName()})
        EXPECT_NE(style->GetSubstyle(category, false), nullptr);
}

TEST(Shapes, WithOneAutomaticStyleHaveStylesOfTheirOwn)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Automatic("graphic", "style:name='gr1'", "<style:graphic-properties draw:fill-color='#00aa00'/>")
            .Page("<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='gr1'/>")
            .Open();
    Styles::Style* const first = opened.Object(L"1/1")->GetStyle();
    Styles::Style* const second = opened.Object(L"1/2")->GetStyle();

    first->SetSubstyle(Styles::FillStyleCategoryName, nullptr);

    EXPECT_EQ(EffectiveOf(first, "fill.color"), "-");
    EXPECT_EQ(EffectiveOf(second, "fill.color"), "#00aa00");
    EXPECT_EQ(opened.Object(L"1/1")->GetStyle(), first);
}

TEST(Shapes, MayNameANamedStyleThemselves)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='Mid_20_One'")
                                     .Page("<draw:rect draw:style-name='Mid_20_One'/>")
                                     .Open();

    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/1")->GetStyle()), L"Mid One");
    EXPECT_THAT(AllOwnOf(opened.Object(L"1/1")->GetStyle()), IsEmpty());
}

TEST(Shapes, TakeTheAutomaticStyleOfTwoWithOneName)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'")
            .Automatic("graphic", "style:name='A'", "<style:graphic-properties draw:fill-color='#00aa00'/>")
            .Page("<draw:rect draw:style-name='A'/>")
            .Open();

    EXPECT_EQ(OwnOf(opened.Object(L"1/1")->GetStyle(), "fill.color"), "#00aa00");
}

TEST(Shapes, WithoutAStyleTakeStandard)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='standard'")
                                     .Automatic("graphic", "style:name='gr1'", "")
                                     .Page("<draw:rect/><draw:rect draw:style-name='gr1'/>")
                                     .Open();

    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/1")->GetStyle()), L"standard");
    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/2")->GetStyle()), L"standard");
    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(Shapes, WithAnUnknownStyleTakeStandard)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='standard'")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Gone'", "")
            .Page("<draw:rect draw:style-name='gr9'/><draw:rect draw:style-name='gr9'/>"
                  "<draw:rect draw:style-name='gr1'/>")
            .Open();

    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/1")->GetStyle()), L"standard");
    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/3")->GetStyle()), L"standard");
    EXPECT_THAT(
        opened.warnings,
        ElementsAre("style \"gr9\": shapes refer to it, but it does not exist; they take \"standard\"",
                    "style \"gr1\": its parent \"Gone\" does not exist; its shapes take \"standard\""));
}

TEST(Shapes, OfADrawingWithoutStandardHaveNoParent)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Defaults("<style:graphic-properties draw:fill-color='#dddddd'/>")
                                     .Page("<draw:rect/>")
                                     .Open();

    const Styles::Style* const style = opened.Object(L"1/1")->GetStyle();

    EXPECT_EQ(style->GetParent(), nullptr);
    EXPECT_EQ(EffectiveOf(style, "fill.color"), "#dddddd");
}

TEST(Shapes, DoNotTakeAStyleOfOneCategoryAsTheirParent)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='standard'")
            .Named("style:name='Paint' sp:category='fill'")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Paint'", "")
            .Page("<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='Paint'/>")
            .Open();

    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/1")->GetStyle()), L"standard");
    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/2")->GetStyle()), L"standard");
}

} // namespace
