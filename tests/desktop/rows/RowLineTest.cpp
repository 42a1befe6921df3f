#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QTest>

using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct RowLine : testing::Test
{
    OpenWindow open{FourBoxes()};

    /// Drags the label of a row by so many pixels, in steps.
    void DragLabel(const char* label, int pixels)
    {
        auto& widget = open.Find<QLabel>(label);
        QTest::mousePress(&widget, Qt::LeftButton, {}, QPoint(5, 5));
        for (int moved = 1; moved <= pixels; ++moved)
            QTest::mouseMove(&widget, QPoint(5 + moved, 5));
    }

    std::size_t Steps() { return open.GetDocument().GetEditor().GetStepCount(); }
};

} // namespace

TEST_F(RowLine, SaysThatSelectedShapesDifferInsteadOfShowingAValue)
{
    open.Select(L"id:1/1,id:1/2");

    EXPECT_EQ(open.Shown("fill.color"), "ambiguous");
    EXPECT_EQ(open.Shown("outline.width"), "<ambiguous>");
}

TEST_F(RowLine, ShowsTheValueThatSelectedShapesShare)
{
    open.Select(L"id:1/1,id:1/4");

    EXPECT_EQ(open.Shown("fill.color"), "#3366cc");
}

TEST_F(RowLine, WritesAColourThatIsChosenFromThePalette)
{
    open.Select(L"id:1/1");

    open.Choose("fill.color", "Sea");

    EXPECT_EQ(open.Shown("fill.color"), "Sea");
    EXPECT_EQ(open.GetDocument().GetUndoName().toStdString(), "Set Fill Colour");
}

TEST_F(RowLine, WritesANumberWhenItIsTypedAndEntered)
{
    open.Select(L"id:1/1,id:1/2");
    auto& field = *open.Find<QWidget>("outline.width").findChild<QDoubleSpinBox*>();

    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("1.5"));
    QTest::keyClick(&field, Qt::Key_Return);

    EXPECT_EQ(open.Shown("outline.width"), "1.50 mm");
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(RowLine, WritesNothingWhenTheKeyboardMerelyPassesThroughAField)
{
    open.Select(L"id:1/1,id:1/2");
    auto& field = *open.Find<QWidget>("outline.width").findChild<QDoubleSpinBox*>();

    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Tab);

    EXPECT_EQ(open.Shown("outline.width"), "<ambiguous>");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(RowLine, MakesOneStepOfADraggedWidth)
{
    open.Select(L"id:1/1");

    DragLabel("outline.width.label", 10);
    QTest::mouseRelease(&open.Find<QLabel>("outline.width.label"), Qt::LeftButton, {}, QPoint(15, 5));

    EXPECT_EQ(open.Shown("outline.width"), "4.50 mm");
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(RowLine, UndoesADraggedWidthAtOnce)
{
    open.Select(L"id:1/1");
    DragLabel("outline.width.label", 10);
    QTest::mouseRelease(&open.Find<QLabel>("outline.width.label"), Qt::LeftButton, {}, QPoint(15, 5));

    open.Trigger("window.edit.undo");

    EXPECT_EQ(open.Shown("outline.width"), "3.50 mm");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(RowLine, LeavesNothingOfADragThatEscapeEnds)
{
    open.Select(L"id:1/1");

    DragLabel("outline.width.label", 10);
    QTest::keyClick(&open.Find<QLabel>("outline.width.label"), Qt::Key_Escape);

    EXPECT_EQ(open.Shown("outline.width"), "3.50 mm");
    EXPECT_EQ(Steps(), 0U);
}
