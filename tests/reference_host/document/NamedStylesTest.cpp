#include "tests/reference_host/document/FlatDrawing.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::vector<std::wstring> NamesIn(const OpenedDrawing& opened)
{
    std::vector<std::wstring> names;
    for (const OvxStringT& name : opened.drawing->GetStyleSheet().GetNames())
        names.push_back(name.Wide());
    return names;
}

TEST(NamedStyles, AreTheGraphicStylesInTheOrderOfTheFile)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='B'")
                                     .Styles("<style:style style:family='presentation' style:name='P'/>")
                                     .Styles("<style:style style:family='paragraph' style:name='Q'/>")
                                     .Named("style:name='A'")
                                     .Open();

    EXPECT_THAT(NamesIn(opened), ElementsAre(L"B", L"A"));
}

TEST(NamedStyles, AreWholeStylesWithTheirFourSubstyles)
{
    const OpenedDrawing opened = FlatDrawing().Named("style:name='A'").Open();

    const Styles::Style* const style = opened.Named(L"A");

    EXPECT_EQ(style->GetCategoryName(), Styles::StyleCategoryName);
    for (const Styles::PropertyKey& category :
         {Styles::FillStyleCategoryName, Styles::OutlineStyleCategoryName,
          Styles::GetParagraphStyleCategoryName(), Styles::GetCharacterStyleCategoryName()})
    {
        const Styles::Style* const substyle = style->GetSubstyle(category, false);
        ASSERT_NE(substyle, nullptr);
        EXPECT_EQ(substyle->GetCategoryName(), category);
        EXPECT_EQ(substyle->GetOwnPropertyCount(), 0U);
    }
}

TEST(NamedStyles, GoByTheirDecodedNames)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='Mid_20_One'")
                                     .Named("style:name='C' style:parent-style-name='Mid_20_One'")
                                     .Open();

    EXPECT_THAT(NamesIn(opened), ElementsAre(L"Mid One", L"C"));
    EXPECT_EQ(opened.ParentOf(opened.Named(L"C")), L"Mid One");
}

TEST(NamedStyles, ShowTheirDisplayNameOrElseTheirName)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='M1' style:display-name='Middle &amp; more'")
                                     .Named("style:name='Mid_20_One'")
                                     .Open();

    EXPECT_EQ(opened.drawing->GetDisplayName(L"M1"), OvxStringT(L"Middle & more"));
    EXPECT_EQ(opened.drawing->GetDisplayName(L"Mid One"), OvxStringT(L"Mid One"));
    EXPECT_EQ(opened.drawing->GetDisplayName(L"nobody"), OvxStringT(L"nobody"));
}

TEST(NamedStyles, MayBeHidden)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='A' style:hidden='true'")
                                     .Named("style:name='B' style:hidden='false'")
                                     .Open();

    EXPECT_TRUE(opened.drawing->IsHidden(L"A"));
    EXPECT_FALSE(opened.drawing->IsHidden(L"B"));
    EXPECT_FALSE(opened.drawing->IsHidden(L"nobody"));
}

TEST(NamedStyles, InheritFromParentsThatComeLaterInTheFile)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Child' style:parent-style-name='Parent'")
            .Named("style:name='Parent'", "<style:graphic-properties draw:fill-color='#3366cc'/>")
            .Open();

    EXPECT_EQ(EffectiveOf(opened.Named(L"Child"), "fill.color"), "#3366cc");
    EXPECT_EQ(OwnOf(opened.Named(L"Child"), "fill.color"), "-");
    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(NamedStyles, FallBackToTheDefaultStyleAfterTheirParents)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Defaults("<style:graphic-properties draw:fill-color='#111111' svg:stroke-width='1mm'/>")
            .Named("style:name='Parent'", "<style:graphic-properties draw:fill-color='#222222'/>")
            .Named("style:name='Child' style:parent-style-name='Parent'")
            .Open();

    EXPECT_EQ(EffectiveOf(opened.Named(L"Child"), "fill.color"), "#222222");
    EXPECT_EQ(EffectiveOf(opened.Named(L"Child"), "outline.width"), "100");
    EXPECT_EQ(opened.Named(L"Parent")->GetParent(), nullptr);
}

TEST(NamedStyles, LoseAParentThatDoesNotExist)
{
    const OpenedDrawing opened =
        FlatDrawing().Named("style:name='My_20_Style' style:parent-style-name='Gone'").Open();

    EXPECT_EQ(opened.Named(L"My Style")->GetParent(), nullptr);
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"My Style\": its parent \"Gone\" does not exist; it was dropped"));
}

TEST(NamedStyles, AreCutWhereTheirParentsFormACycle)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='A' style:parent-style-name='B'",
                                            "<style:graphic-properties draw:fill='none'/>")
                                     .Named("style:name='B' style:parent-style-name='C'")
                                     .Named("style:name='C' style:parent-style-name='A'")
                                     .Open();

    EXPECT_EQ(opened.ParentOf(opened.Named(L"A")), L"B");
    EXPECT_EQ(opened.ParentOf(opened.Named(L"B")), L"C");
    EXPECT_EQ(opened.Named(L"C")->GetParent(), nullptr);
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"C\": its parent \"A\" inherits from it; the cycle was cut here"));
}

TEST(NamedStyles, InheritFromAsManyStylesAsTheLimitAllows)
{
    constexpr int kLimit = 256;
    FlatDrawing drawing;
    drawing.Named("style:name='S0'", "<style:graphic-properties draw:fill='none'/>");
    for (int number = 1; number <= kLimit; ++number)
        drawing.Named("style:name='S" + std::to_string(number) + "' style:parent-style-name='S" +
                      std::to_string(number - 1) + "'");

    const OpenedDrawing opened = drawing.Open();

    EXPECT_EQ(EffectiveOf(opened.Named(L"S255"), "fill.type"), "none");
    EXPECT_EQ(opened.Named(L"S256")->GetParent(), nullptr);
    EXPECT_THAT(opened.warnings, ElementsAre("style \"S256\": it inherits from more than 255 styles; those "
                                             "from \"S255\" on were cut off"));
}

TEST(NamedStyles, MayNotBeTheirOwnParents)
{
    const OpenedDrawing opened = FlatDrawing().Named("style:name='A' style:parent-style-name='A'").Open();

    EXPECT_EQ(opened.Named(L"A")->GetParent(), nullptr);
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"A\": its parent \"A\" inherits from it; the cycle was cut here"));
}

TEST(NamedStyles, BelowACycleKeepTheirParents)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='X' style:parent-style-name='A'")
                                     .Named("style:name='A' style:parent-style-name='B'")
                                     .Named("style:name='B' style:parent-style-name='A'")
                                     .Open();

    EXPECT_EQ(opened.ParentOf(opened.Named(L"X")), L"A");
    EXPECT_EQ(opened.ParentOf(opened.Named(L"A")), L"B");
    EXPECT_EQ(opened.Named(L"B")->GetParent(), nullptr);
}

TEST(NamedStyles, ThatAreThereTwiceCountOnce)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'", "<style:graphic-properties draw:fill-color='#111111'/>")
            .Named("style:name='A'", "<style:graphic-properties draw:fill-color='#222222'/>")
            .Open();

    EXPECT_EQ(EffectiveOf(opened.Named(L"A"), "fill.color"), "#111111");
    EXPECT_THAT(opened.warnings, ElementsAre("style \"A\": it is there twice; the first one counts"));
}

TEST(NamedStyles, ThatAreRepeatedWordForWordAreNotReported)
{
    const std::string properties = "<style:graphic-properties draw:fill-color='#111111'/>";

    const OpenedDrawing opened =
        FlatDrawing().Named("style:name='A'", properties).Named("style:name='A'", properties).Open();

    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(NamedStyles, WhoseNamesBecomeTheSameAreToldApart)
{
    const OpenedDrawing opened =
        FlatDrawing().Named("style:name='a_2f_b'").Named("style:name='a_2F_b'").Open();

    EXPECT_THAT(NamesIn(opened), ElementsAre(L"a/b", L"a_2F_b"));
    EXPECT_THAT(
        opened.warnings,
        ElementsAre("style \"a/b\": another style has this name already; this one is called \"a_2F_b\""));
}

TEST(NamedStyles, WithoutANameArePassedOver)
{
    const OpenedDrawing opened = FlatDrawing().Named("").Open();

    EXPECT_THAT(NamesIn(opened), IsEmpty());
    EXPECT_THAT(opened.warnings, ElementsAre("a style without a name was passed over"));
}

TEST(NamedStyles, OfOneCategoryHoldThatCategoryAlone)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Paint' sp:category='fill'",
                   "<style:graphic-properties draw:fill-color='#123456' svg:stroke-color='#654321'/>")
            .Open();

    const Styles::Style* const style = opened.Named(L"Paint");

    EXPECT_EQ(style->GetCategoryName(), Styles::FillStyleCategoryName);
    EXPECT_THAT(AllOwnOf(style), ElementsAre("color=#123456"));
    EXPECT_THAT(opened.drawing->GetStyleSheet().GetStyleNames(Styles::FillStyleCategoryName),
                ElementsAre(OvxStringT(L"Paint")));
    EXPECT_THAT(opened.drawing->GetStyleSheet().GetStyleNames(Styles::StyleCategoryName), IsEmpty());
}

TEST(NamedStyles, OfOneCategoryInheritFromTheirOwnParent)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Whole'")
            .Named("style:name='Paint' sp:category='fill'")
            .Named("style:name='Gloss' style:parent-style-name='Whole' sp:category='fill'"
                   " sp:parent-style-name='Paint'")
            .Open();

    EXPECT_EQ(opened.ParentOf(opened.Named(L"Gloss")), L"Paint");
}

TEST(NamedStyles, OfAnUnknownCategoryAreLeftOut)
{
    const OpenedDrawing opened = FlatDrawing().Named("style:name='A' sp:category='scent'").Open();

    EXPECT_EQ(opened.Named(L"A"), nullptr);
    EXPECT_THAT(opened.warnings,
                ElementsAre("style \"A\": its category \"scent\" is not known here; it was left out"));
}

TEST(DefaultStyle, IsNobodysParentAndNotInTheSheet)
{
    const OpenedDrawing opened =
        FlatDrawing().Defaults("<style:text-properties fo:font-size='24pt'/>").Named("style:name='A'").Open();

    Styles::Style& defaults = opened.drawing->GetDefaultStyle();

    EXPECT_EQ(OwnOf(&defaults, "character.size"), "240");
    EXPECT_EQ(opened.drawing->GetStyleSheet().GetStyleName(&defaults), OvxStringT());
    EXPECT_EQ(opened.Named(L"A")->GetParent(), nullptr);
}

TEST(DefaultStyle, IsEmptyWithoutOneInTheFile)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Styles(
                "<style:default-style style:family='paragraph'><style:text-properties fo:font-size='9pt'/>"
                "</style:default-style>")
            .Open();

    EXPECT_THAT(AllOwnOf(&opened.drawing->GetDefaultStyle()), IsEmpty());
}

} // namespace
