// What the style source of a drawing does with styles of sheets outside it.

#include "reference_host/services/DocumentStylesSource.h"

#include "reference_host/services/Idle.h"
#include "tests/reference_host/document/SheetFolder.h"
#include "tests/reference_host/services/EditedDrawing.h"

#include <gmock/gmock.h>

using Styles::Style;
using testing::IsEmpty;

namespace
{

/// A drawing with a sheet outside it, and the source that writes to it.
class ExternalStyles : public testing::Test
{
protected:
    ExternalStyles()
    {
        folder.Write("house.fodg", HouseSheet());
        Open(EditingDrawing());
    }

    /// Leaves no event waiting for other tests.
    ~ExternalStyles() override { ReferenceHost::RunIdle(); }

    void Open(const FlatDrawing& drawing)
    {
        source.reset();
        document.reset();
        folder.Write("drawing.fodg", drawing);
        opened = folder.Open("drawing.fodg");
        document.emplace(*opened.drawing);
        source.emplace(*document);
    }

    static Styles::PropertyKey Key(const wchar_t* text)
    {
        return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
    }

    [[nodiscard]] Style* External(const wchar_t* name) const { return opened.drawing->FindStyle(name); }

    [[nodiscard]] Style* Shape(int number) const
    {
        return opened.Object(L"1/" + std::to_wstring(number))->GetStyle();
    }

    /// Writes the colour #770000 to the fill of a style, as a panel does.
    void WriteColour(Style* target)
    {
        auto change = std::make_unique<Style>(nullptr, Styles::FillStyleCategoryName);
        change->SetProperty(Key(L"color"), OvxUtils::Any(CLR_COLORSPEC::FromRgb({0x77, 0, 0})));
        source->GetMultipleStyleModifier()->Modify(
            {target->GetSubstyle(Styles::FillStyleCategoryName, false)}, {}, {{Key(L"color")}},
            std::move(change), {}, false, false, nullptr);
    }

    [[nodiscard]] std::size_t Steps() { return opened.drawing->GetHistory().GetStepCount(); }

    SheetFolder folder;
    OpenedDrawing opened;
    std::optional<DrawingDocument> document;
    std::optional<ReferenceHost::DocumentStylesSource> source;
};

} // namespace

TEST_F(ExternalStyles, AreFoundInTheSheetOfTheirName)
{
    Styles::StyleSheet* const sheet = source->GetExternalStyleSheet(L"House");

    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->GetStyleName(External(L"House Box")), L"House Box");
    EXPECT_EQ(source->GetStyleSheet()->GetStyle(L"House Box"), nullptr);
    EXPECT_EQ(source->GetExternalStyleSheet(L"unknown"), nullptr);
}

TEST_F(ExternalStyles, WithALinkAreEditedInOneStepOfTheDrawing)
{
    WriteColour(External(L"House Box"));

    EXPECT_EQ(OwnOf(External(L"House Box"), "fill.color"), "#770000");
    EXPECT_EQ(EffectiveOf(Shape(1), "fill.color"), "#770000");
    EXPECT_EQ(Steps(), 1U);
    EXPECT_TRUE(opened.drawing->GetHistory().Undo());
    EXPECT_EQ(OwnOf(External(L"House Box"), "fill.color"), "#00aa00");
    EXPECT_TRUE(opened.drawing->GetHistory().Redo());
    EXPECT_EQ(OwnOf(External(L"House Box"), "fill.color"), "#770000");
}

TEST_F(ExternalStyles, WithoutALinkStayAsTheyAre)
{
    Open(LinkedDrawing());
    Style* const box = External(L"House Box");
    auto values = std::make_unique<Style>(nullptr, Styles::StyleCategoryName);

    WriteColour(box);
    source->SetParent(box, nullptr, false);
    source->SetParent(box, External(L"House Base"), false);
    source->ReplaceProperties(box, {{Key(L"fill"), Key(L"color")}}, std::move(values), true, false);
    source->SetSelectedStyles({box});
    source->CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_EQ(OwnOf(box, "fill.color"), "#00aa00");
    EXPECT_EQ(box->GetParent(), External(L"House Base"));
    EXPECT_EQ(opened.Named(L"New"), nullptr);
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(ExternalStyles, BecomeTheParentsOfTheDrawingsStylesAndStaySoWhenItIsReopened)
{
    source->SetSelectedStyles({Shape(2)});
    source->ApplyStyle(External(L"House Box"), false);
    source->SetParent(opened.Named(L"Note"), External(L"House Box"), false);
    EXPECT_EQ(Steps(), 2U);
    std::vector<std::string> warnings;
    opened.drawing->Save(folder.PathOf("drawing.fodg"), {}, warnings);

    const OpenedDrawing again = folder.Open("drawing.fodg");

    EXPECT_THAT(warnings, IsEmpty());
    Style* const box = again.drawing->FindStyle(L"House Box");
    EXPECT_EQ(again.Object(L"1/2")->GetStyle()->GetParent(), box);
    EXPECT_EQ(again.Named(L"Note")->GetParent(), box);
}

TEST_F(ExternalStyles, ComeBackAsParentsThatWereDropped)
{
    source->SetParent(Shape(1), nullptr, false);
    ASSERT_EQ(Shape(1)->GetParent(), nullptr);

    EXPECT_TRUE(opened.drawing->GetHistory().Undo());

    EXPECT_EQ(Shape(1)->GetParent(), External(L"House Box"));
}

TEST_F(ExternalStyles, InheritWithinTheirSheetOnly)
{
    source->SetParent(External(L"House Base"), opened.Named(L"Note"), false);
    EXPECT_EQ(External(L"House Base")->GetParent(), nullptr);

    source->SetParent(External(L"House Box"), nullptr, false);
    source->SetParent(External(L"House Base"), External(L"House Box"), false);

    EXPECT_EQ(External(L"House Base")->GetParent(), External(L"House Box"));
    EXPECT_EQ(Steps(), 2U);
}

TEST_F(ExternalStyles, DoNotBecomeTheChildrenOfANewStyle)
{
    source->SetSelectedStyles({Shape(2), External(L"House Box")});

    source->CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_EQ(opened.Named(L"New"), nullptr);
    EXPECT_EQ(External(L"House Box")->GetParent(), External(L"House Base"));
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(ExternalStyles, AreTheParentsOfStylesMadeFromTheirShapes)
{
    source->SetSelectedStyles({Shape(1)});

    source->CreateStyle(Styles::StyleCategoryName, L"New");

    EXPECT_EQ(opened.Named(L"New")->GetParent(), External(L"House Box"));
    EXPECT_EQ(Shape(1)->GetParent(), opened.Named(L"New"));
}

TEST_F(ExternalStyles, TakeTheValuesThatAreAppliedToThem)
{
    Style* const box = External(L"House Box");
    auto values = std::make_unique<Style>(nullptr, Key(L"outline"));
    values->SetProperty(Key(L"width"), OvxUtils::Any(200));
    bool isCleared = false;

    source->ApplyToParent([&](const Styles::PropertyPaths&) { isCleared = true; },
                          box->GetSubstyle(Key(L"outline"), false), {{Key(L"width")}}, std::move(values));

    EXPECT_TRUE(isCleared);
    EXPECT_EQ(OwnOf(box, "outline.width"), "200");
}
