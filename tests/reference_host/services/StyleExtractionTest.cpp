#include "reference_host/services/StyleExtraction.h"

#include "tests/reference_host/services/EditedDrawing.h"

using Styles::Style;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class CreatedStyle : public EditedDrawing
{
protected:
    Style* Fill(Style* whole) { return whole->GetSubstyle(Key(L"fill"), false); }
};

} // namespace

TEST_F(CreatedStyle, TakesOverWhatTheFirstSelectedStyleSets)
{
    source.SetSelectedStyles({Shape(2), Shape(3)});

    source.CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_THAT(AllOwnOf(opened.Named(L"New")),
                ElementsAre("character.size=100", "fill.color=#220000", "outline.width=100"));
    EXPECT_EQ(opened.ParentOf(opened.Named(L"New")), L"Base");
    EXPECT_THAT(AllOwnOf(Shape(2)), IsEmpty());
    EXPECT_EQ(opened.ParentOf(Shape(2)), L"New");
}

TEST_F(CreatedStyle, IsInheritedByThoseThatSetTheSame)
{
    source.SetSelectedStyles({Shape(1), Shape(2), Shape(3)});

    source.CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_EQ(opened.ParentOf(Shape(2)), L"New");
    EXPECT_THAT(AllOwnOf(Shape(2)), IsEmpty());
    EXPECT_EQ(opened.ParentOf(Shape(3)), L"Base");
    EXPECT_THAT(AllOwnOf(Shape(3)), ElementsAre("fill.color=#330000"));
}

TEST_F(CreatedStyle, LeavesTheLookAsItIs)
{
    source.SetSelectedStyles({Shape(1)});

    source.CreateStyle(Styles::StyleCategoryName, L"New");

    Style* const run = opened.Object(L"1/1")->GetRuns()[1].GetStyle();
    EXPECT_EQ(EffectiveOf(Shape(1), "fill.color"), "#220000");
    EXPECT_EQ(EffectiveOf(run, "character.size"), "100");
    EXPECT_THAT(AllOwnOf(run), ElementsAre("character.color=#cc0000"));
    EXPECT_EQ(opened.ParentOf(run), L"New");
}

TEST_F(CreatedStyle, IsOneStep)
{
    const std::vector<std::string> before = Dump();
    source.SetSelectedStyles({Shape(1), Shape(2)});

    source.CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_EQ(history.GetStepCount(), 1U);
    ExpectExactUndo(before);
}

TEST_F(CreatedStyle, IsRenamedInTheSameStep)
{
    const std::vector<std::string> before = Dump();
    source.SetSelectedStyles({Shape(2)});
    history.Open(L"Create");
    source.CreateStyle(Styles::StyleCategoryName, L"style");
    document.RenameStyle(L"style", L"Warning");
    history.Close();

    EXPECT_EQ(opened.ParentOf(Shape(2)), L"Warning");
    EXPECT_EQ(history.GetStepCount(), 1U);
    ExpectExactUndo(before);
}

TEST_F(CreatedStyle, OfOneCategoryBecomesTheParentOfThatSubstyle)
{
    source.SetSelectedStyles({Shape(1), Shape(2), Shape(3)});

    source.CreateStyle(Styles::FillStyleCategoryName, L"Glow");

    Style* const glow = opened.Named(L"Glow");
    EXPECT_EQ(glow->GetCategoryName(), Styles::FillStyleCategoryName);
    EXPECT_EQ(glow->GetProperty(Key(L"color")), Colour(0x22));
    EXPECT_EQ(Fill(Shape(1))->GetParent(), glow);
    EXPECT_EQ(Fill(Shape(2))->GetParent(), glow);
    EXPECT_EQ(Fill(Shape(3))->GetParent(), nullptr);
    EXPECT_THAT(AllOwnOf(Shape(2)), ElementsAre("character.size=100", "outline.width=100"));
    EXPECT_EQ(EffectiveOf(Shape(2), "fill.color"), "#220000");
    EXPECT_EQ(opened.ParentOf(Shape(2)), L"Base");
}

TEST_F(CreatedStyle, TakesTheParentsOfSubstylesAlong)
{
    source.SetSelectedStyles({Shape(2)});
    source.CreateStyle(Styles::FillStyleCategoryName, L"Glow");
    Style* const glow = opened.Named(L"Glow");
    Fill(Shape(2))->SetProperty(Key(L"color"), Colour(0x99));

    source.CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_EQ(Fill(opened.Named(L"New"))->GetParent(), glow);
    EXPECT_EQ(Fill(Shape(2))->GetParent(), nullptr);
    EXPECT_EQ(EffectiveOf(Shape(2), "fill.color"), "#990000");
}

TEST_F(CreatedStyle, OfOneCategoryTakesThePlaceOfAnEarlierOne)
{
    source.SetSelectedStyles({Shape(2)});
    source.CreateStyle(Styles::FillStyleCategoryName, L"Glow");
    Fill(Shape(2))->SetProperty(Key(L"transparency"), OvxUtils::Any(30));

    source.CreateStyle(Styles::FillStyleCategoryName, L"Fog");

    EXPECT_EQ(Fill(Shape(2))->GetParent(), opened.Named(L"Fog"));
    EXPECT_EQ(opened.Named(L"Fog")->GetParent(), opened.Named(L"Glow"));
    EXPECT_EQ(EffectiveOf(Shape(2), "fill.color"), "#220000");
    EXPECT_EQ(EffectiveOf(Shape(2), "fill.transparency"), "30");
}

TEST_F(CreatedStyle, TakesOverWhatANamedStyleSets)
{
    source.SetSelectedStyles({opened.Named(L"Base")});

    source.CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_EQ(opened.ParentOf(opened.Named(L"Base")), L"New");
    EXPECT_EQ(EffectiveOf(opened.Named(L"Child"), "fill.color"), "#110000");
    EXPECT_THAT(AllOwnOf(opened.Named(L"Base")), IsEmpty());
}

TEST_F(CreatedStyle, IsEmptyWithoutASelection)
{
    source.CreateStyle(Styles::StyleCategoryName, L"New");
    source.SetSelectedStyles({&opened.drawing->GetDefaultStyle(), nullptr});
    source.CreateStyle(Styles::StyleCategoryName, L"Newer");

    EXPECT_THAT(AllOwnOf(opened.Named(L"New")), IsEmpty());
    EXPECT_THAT(AllOwnOf(opened.Named(L"Newer")), IsEmpty());
    EXPECT_EQ(opened.drawing->GetDefaultStyle().GetParent(), nullptr);
}

TEST_F(CreatedStyle, IsNotMadeUnderANameThatIsTaken)
{
    const std::vector<std::string> before = Dump();
    source.SetSelectedStyles({Shape(1)});

    source.CreateStyle(Styles::StyleCategoryName, L"Base");
    source.CreateStyle(Styles::StyleCategoryName, L"");

    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(history.GetStepCount(), 0U);
}
