#include "reference_host/services/DocumentStylesSource.h"

#include "tests/reference_host/services/EditedDrawing.h"

#include <set>
#include <stdexcept>

using Styles::PropertyPaths;
using Styles::Style;
using testing::ElementsAre;

namespace
{

class DocumentCommands : public EditedDrawing
{
protected:
    Style* Fill(Style* whole) { return whole->GetSubstyle(Key(L"fill"), false); }

    /// Applies a colour to the fill of "Base", and clears it on the first shape.
    void ApplyColourToParent(Style* destination)
    {
        source.ApplyToParent([this](const PropertyPaths& paths)
                             { Fill(Shape(1))->SetProperties(paths, std::make_unique<Style>().get()); },
                             destination, {{Key(L"color")}}, Change(L"fill", L"color", Colour(0x22)));
    }

    void MakeReadOnly(Style* style) { ReferenceHost::SetExternalSheet(*style, L"corporate", L""); }
};

} // namespace

TEST_F(DocumentCommands, ApplyValuesToTheParentInOneStep)
{
    const std::vector<std::string> before = Dump();

    ApplyColourToParent(Fill(opened.Named(L"Base")));

    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "fill.color"), "#220000");
    EXPECT_EQ(OwnOf(Shape(1), "fill.color"), "-");
    EXPECT_EQ(EffectiveOf(Shape(1), "fill.color"), "#220000");
    EXPECT_EQ(OwnOf(Shape(2), "fill.color"), "#220000");
    EXPECT_EQ(history.GetStepCount(), 1U);
    ExpectExactUndo(before);
}

TEST_F(DocumentCommands, WriteBeforeTheyClear)
{
    std::string atClearing;

    source.ApplyToParent(
        [&](const PropertyPaths&) { atClearing = OwnOf(opened.Named(L"Base"), "fill.color"); },
        Fill(opened.Named(L"Base")), {{Key(L"color")}}, Change(L"fill", L"color", Colour(0x22)));

    EXPECT_EQ(atClearing, "#220000");
}

TEST_F(DocumentCommands, LeaveEverythingWhenClearingFails)
{
    const std::vector<std::string> before = Dump();
    const auto fail = [](const PropertyPaths&) { throw std::runtime_error("cannot clear"); };

    EXPECT_THROW(source.ApplyToParent(fail, Fill(opened.Named(L"Base")), {{Key(L"color")}},
                                      Change(L"fill", L"color", Colour(0x22))),
                 std::runtime_error);

    EXPECT_EQ(Dump(), before);
    EXPECT_FALSE(history.IsOpen());
    EXPECT_FALSE(history.CanUndo());
}

TEST_F(DocumentCommands, ApplyNothingToAReadOnlyParent)
{
    const std::vector<std::string> before = Dump();
    MakeReadOnly(opened.Named(L"Base"));

    ApplyColourToParent(Fill(opened.Named(L"Base")));
    ApplyColourToParent(nullptr);

    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(DocumentCommands, ReplacePropertiesAndDropTheParent)
{
    const std::vector<std::string> before = Dump();
    std::set<Styles::PropertyKey> keys;
    std::unique_ptr<Style> flat(Shape(1)->CreateFlattenedStyle(keys));

    source.ReplaceProperties(Shape(1), Styles::MakePaths(keys), std::move(flat), true, false);

    EXPECT_EQ(Shape(1)->GetParent(), nullptr);
    EXPECT_EQ(OwnOf(Shape(1), "character.size"), "100");
    EXPECT_EQ(history.GetStepCount(), 1U);
    ExpectExactUndo(before);
}

TEST_F(DocumentCommands, KeepTheLookOfTextWhoseShapeLosesItsParent)
{
    Style* const run = opened.Object(L"1/1")->GetRuns()[1].GetStyle();
    Style* const third = Shape(3);
    std::set<Styles::PropertyKey> keys;
    std::unique_ptr<Style> flat(third->CreateFlattenedStyle(keys));

    source.ReplaceProperties(third, Styles::MakePaths(keys), std::move(flat), true, false);

    EXPECT_EQ(EffectiveOf(third, "character.size"), "140");
    EXPECT_EQ(EffectiveOf(run, "character.size"), "100");
}

TEST_F(DocumentCommands, ReplaceNothingInReadOnlyStyles)
{
    MakeReadOnly(opened.Named(L"Base"));

    source.ReplaceProperties(opened.Named(L"Base"), {{Key(L"fill")}}, std::make_unique<Style>(), true, false);
    source.ReplaceProperties(Shape(1), {{Key(L"fill")}}, nullptr, true, false);

    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "fill.color"), "#110000");
    EXPECT_EQ(opened.ParentOf(Shape(1)), L"Base");
    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(DocumentCommands, SetAndClearParents)
{
    source.SetParent(opened.Named(L"Child"), nullptr, true);
    const Style* const cleared = opened.Named(L"Child")->GetParent();
    source.SetParent(opened.Named(L"Child"), opened.Named(L"Base"), true);

    EXPECT_EQ(cleared, nullptr);
    EXPECT_EQ(opened.ParentOf(opened.Named(L"Child")), L"Base");
    EXPECT_EQ(history.GetStepCount(), 2U);
}

TEST_F(DocumentCommands, RefuseParentsThatWouldCloseACycle)
{
    source.SetParent(opened.Named(L"Base"), opened.Named(L"Child"), true);
    source.SetParent(opened.Named(L"Base"), opened.Named(L"Base"), true);

    EXPECT_EQ(opened.Named(L"Base")->GetParent(), nullptr);
    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(DocumentCommands, RefuseDefaultAndReadOnlyStylesWhereParentsAreSet)
{
    Style& defaults = opened.drawing->GetDefaultStyle();
    MakeReadOnly(opened.Named(L"Child"));

    source.SetParent(&defaults, opened.Named(L"Base"), true);
    source.SetParent(Shape(1), &defaults, true);
    source.SetParent(opened.Named(L"Child"), nullptr, true);
    source.SetParent(nullptr, opened.Named(L"Base"), true);

    EXPECT_EQ(defaults.GetParent(), nullptr);
    EXPECT_EQ(opened.ParentOf(Shape(1)), L"Base");
    EXPECT_EQ(opened.ParentOf(opened.Named(L"Child")), L"Base");
    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(DocumentCommands, MakeAStyleOfOneCategoryTheParentOfThatSubstyle)
{
    Style* const glow = opened.drawing->AddStyle(Styles::FillStyleCategoryName, L"Glow");

    source.SetParent(Shape(1), glow, true);
    source.SetParent(glow, opened.Named(L"Base"), true);

    EXPECT_EQ(opened.ParentOf(Shape(1)), L"Base");
    EXPECT_EQ(Fill(Shape(1))->GetParent(), glow);
    EXPECT_EQ(glow->GetParent(), nullptr);
}

TEST_F(DocumentCommands, ApplyAStyleToAllThatIsSelected)
{
    const std::vector<std::string> before = Dump();
    source.SetSelectedStyles({Shape(1), nullptr, Shape(3)});

    source.ApplyStyle(opened.Named(L"Child"), false);

    EXPECT_EQ(opened.ParentOf(Shape(1)), L"Child");
    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/1")->GetRuns()[0].GetStyle()), L"Child");
    EXPECT_EQ(opened.ParentOf(Shape(2)), L"Base");
    EXPECT_EQ(opened.ParentOf(Shape(3)), L"Child");
    EXPECT_EQ(history.GetStepCount(), 1U);
    ExpectExactUndo(before);
}

TEST_F(DocumentCommands, ApplyNothingWithoutASelection)
{
    source.ApplyStyle(opened.Named(L"Child"), false);
    source.SetSelectedStyles({Shape(1)});
    source.ApplyStyle(nullptr, false);

    EXPECT_EQ(history.GetStepCount(), 0U);
}
