#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QColorDialog>
#include <QSignalSpy>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct ColourControl : testing::Test
{
    OpenWindow open{FourBoxes()};

    std::size_t Steps() { return open.GetDocument().GetEditor().GetStepCount(); }
};

QColorDialog& Colours(QDialog& dialog)
{
    return static_cast<QColorDialog&>(dialog);
}

} // namespace

TEST_F(ColourControl, ShowsColoursInTheDrawingWhileTheyAreChosen)
{
    open.Select(L"id:1/1");
    const QSignalSpy previewed(&open.GetDocument(), &Desktop::Document::previewed);
    const DialogAnswer answer(
        [&](QDialog& dialog)
        {
            Colours(dialog).setCurrentColor(QColor(0, 128, 0));
            EXPECT_EQ(previewed.count(), 1);
            dialog.reject();
        });

    open.Choose("fill.color", "Choose Colour...");
}

TEST_F(ColourControl, LeavesNothingOfADialogThatIsGivenUp)
{
    open.Select(L"id:1/1,id:1/2");
    const DialogAnswer answer(
        [](QDialog& dialog)
        {
            Colours(dialog).setCurrentColor(QColor(0, 128, 0));
            Colours(dialog).setCurrentColor(QColor(0, 0, 128));
            dialog.reject();
        });

    open.Choose("fill.color", "Choose Colour...");

    EXPECT_EQ(open.Shown("fill.color"), "ambiguous");
    EXPECT_EQ(Steps(), 0U);
    EXPECT_FALSE(open.GetDocument().IsModified());
}

TEST_F(ColourControl, MakesOneStepOfAllColoursThatWereTried)
{
    open.Select(L"id:1/1,id:1/2");
    const DialogAnswer answer(
        [](QDialog& dialog)
        {
            Colours(dialog).setCurrentColor(QColor(0, 128, 0));
            Colours(dialog).setCurrentColor(QColor(0, 0, 128));
            dialog.accept();
        });

    open.Choose("fill.color", "Choose Colour...");

    EXPECT_EQ(open.Shown("fill.color"), "#000080");
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(ColourControl, KeepsALinkWhoseColourIsOnlyLookedAt)
{
    open.Select(L"id:1/1");
    open.Choose("fill.color", "Sea");
    const DialogAnswer answer([](QDialog& dialog) { dialog.accept(); });

    open.Choose("fill.color", "Choose Colour...");

    EXPECT_EQ(open.Shown("fill.color"), "Sea");
}
