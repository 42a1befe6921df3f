#include "tests/reference_host/services/EditedDrawing.h"

#include <set>

using Styles::Style;
using testing::ElementsAreArray;

namespace
{

/// Edits that go to the file and come back.
class SavedEdits : public EditedDrawing
{
protected:
    [[nodiscard]] std::string Bytes()
    {
        std::vector<std::string> warnings;
        return opened.drawing->Serialise(warnings);
    }

    /// Expects that the drawing reads as it is now when it is opened again.
    void ExpectSameWhenReopened()
    {
        const OpenedDrawing reopened = OpenText(Bytes());
        EXPECT_THAT(DumpOf(*reopened.drawing), ElementsAreArray(Dump()));
    }

    Style* Run(std::size_t index) { return opened.Object(L"1/1")->GetRuns()[index].GetStyle(); }
};

} // namespace

TEST_F(SavedEdits, AreGoneWithoutATraceWhenAllIsUndone)
{
    const std::string before = Bytes();
    WriteColour({Shape(1), Shape(3), opened.Named(L"Base")}, 0x77);
    source.SetSelectedStyles({Shape(1), Shape(2)});
    source.CreateStyle(Styles::StyleCategoryName, L"New");
    source.CreateStyle(Styles::FillStyleCategoryName, L"Glow");
    source.ApplyStyle(opened.Named(L"Child"), false);
    document.RenameStyle(L"Child", L"Grandchild");
    opened.drawing->DefinePaletteColour(L"Sea", {0, 0, 0x80});
    Run(1)->SetPathProperty({Key(L"character"), Key(L"size")}, OvxUtils::Any(300));
    ASSERT_NE(Bytes(), before);

    while (history.Undo())
    {
    }

    EXPECT_EQ(Bytes(), before);
}

TEST_F(SavedEdits, OfAnObjectsTextComeBack)
{
    Shape(1)->SetPathProperty({Key(L"character"), Key(L"size")}, OvxUtils::Any(300));
    ASSERT_EQ(history.GetStepCount(), 1U);

    ExpectSameWhenReopened();
}

TEST_F(SavedEdits, OfARunThatIsClearedComeBack)
{
    Run(0)->SetPathProperty({Key(L"character"), Key(L"size")}, {});
    ASSERT_EQ(history.GetStepCount(), 1U);

    ExpectSameWhenReopened();
}

TEST_F(SavedEdits, OfParentsComeBack)
{
    source.SetSelectedStyles({Shape(1), Shape(3)});

    source.ApplyStyle(opened.Named(L"Child"), false);

    ExpectSameWhenReopened();
}

TEST_F(SavedEdits, ThatDropAParentComeBack)
{
    std::set<Styles::PropertyKey> keys;
    std::unique_ptr<Style> flat(Shape(1)->CreateFlattenedStyle(keys));

    source.ReplaceProperties(Shape(1), Styles::MakePaths(keys), std::move(flat), true, false);

    ExpectSameWhenReopened();
}

TEST_F(SavedEdits, ThatCreateStylesComeBack)
{
    source.SetSelectedStyles({Shape(1), Shape(2), Shape(3)});

    source.CreateStyle(Styles::StyleCategoryName, L"New");
    document.RenameStyle(L"New", L"Brand New");

    ExpectSameWhenReopened();
}

TEST_F(SavedEdits, OfThePaletteComeBack)
{
    opened.drawing->DefinePaletteColour(L"Sea", {0, 0, 0x80});
    Shape(3)->SetPathProperty({Key(L"fill"), Key(L"color")},
                              OvxUtils::Any(CLR_COLORSPEC::FromResource(L"Sea", {0, 0, 0x80})));
    ASSERT_EQ(history.GetStepCount(), 2U);

    ExpectSameWhenReopened();
}
