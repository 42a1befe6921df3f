#include "tests/desktop/canvas/CanvasFixture.h"

#include "reference_host/document/DrawingObject.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPalette>

#include <utility>

namespace
{

/// Two squares of 2 cm at (2, 2) and (6, 2) cm, the first with a name, and a group of two at (10, 2) and
/// (14, 2) cm.
constexpr const char* kSquares =
    R"(<draw:rect draw:name="Tank" svg:x="2cm" svg:y="2cm" svg:width="2cm" svg:height="2cm"/>)"
    R"(<draw:rect svg:x="6cm" svg:y="2cm" svg:width="2cm" svg:height="2cm"/>)"
    R"(<draw:g><draw:rect svg:x="10cm" svg:y="2cm" svg:width="2cm" svg:height="2cm"/>)"
    R"(<draw:rect svg:x="14cm" svg:y="2cm" svg:width="2cm" svg:height="2cm"/></draw:g>)";

using CanvasKeyboard = CanvasTest;
using CanvasAccess = CanvasTest;
using CanvasColours = CanvasTest;
using CanvasGroups = CanvasTest;

TEST_F(CanvasKeyboard, GoesFromObjectToObjectAndBackToTheFirst)
{
    ShowShapes(kSquares);

    PressKey(Qt::Key_Tab);
    EXPECT_EQ(Selected(), "1/1");
    PressKey(Qt::Key_Tab);
    EXPECT_EQ(Selected(), "1/2");
    PressKey(Qt::Key_Tab);
    PressKey(Qt::Key_Tab);
    EXPECT_EQ(Selected(), "1/3/2");
    PressKey(Qt::Key_Tab);
    EXPECT_EQ(Selected(), "1/1");
}

TEST_F(CanvasKeyboard, GoesBackwardsWithShift)
{
    ShowShapes(kSquares);
    Click(7000, 3000);

    PressKey(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "1/1");
    PressKey(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "1/3/2");
}

TEST_F(CanvasKeyboard, BringsWhatItSelectsIntoView)
{
    ShowShapes(kSquares);
    for (int turn = 0; turn < 40; ++turn)
        Turn({7000, 3000}, -1);
    ASSERT_FALSE(canvas.rect().contains(canvas.ToWidget({3000, 3000}).toPoint()));

    PressKey(Qt::Key_Tab);

    EXPECT_TRUE(canvas.rect().contains(canvas.ToWidget({3000, 3000}).toPoint()));
}

TEST_F(CanvasKeyboard, LeavesTheCanvasByCtrlTab)
{
    QWidget window;
    QLineEdit other(&window);
    ShowShapes(kSquares);
    canvas.setParent(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    canvas.setFocus();
    ASSERT_TRUE(canvas.hasFocus());

    PressKey(Qt::Key_Tab, Qt::ControlModifier);

    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(Selected(), "-");
    canvas.setParent(nullptr);
}

TEST_F(CanvasKeyboard, ZoomsWithPlusMinusAndZero)
{
    ShowShapes(kSquares);
    const auto centimetre = [&] { return canvas.ToWidget({1000, 0}).x() - canvas.ToWidget({0, 0}).x(); };
    const double whole = centimetre();

    PressKey(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(centimetre(), whole * 1.25, 1e-6);
    PressKey(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(centimetre(), whole, 1e-6);
    PressKey(Qt::Key_Plus, Qt::ControlModifier);
    PressKey(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(centimetre(), whole, 1e-6);
}

TEST_F(CanvasGroups, AreSelectedWholeByADoubleClick)
{
    ShowShapes(kSquares);
    const QPointF place = canvas.ToWidget({11000, 3000});

    QMouseEvent event(QEvent::MouseButtonDblClick, place, canvas.mapToGlobal(place), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &event);

    EXPECT_EQ(Selected(), "1/3/1 1/3/2");
}

TEST_F(CanvasAccess, TellsWhatIsSelectedByNameOrKind)
{
    ShowShapes(kSquares);
    canvas.setAccessibleName("Drawing");
    QAccessibleInterface* const access = QAccessible::queryAccessibleInterface(&canvas);
    ASSERT_NE(access, nullptr);
    EXPECT_EQ(access->role(), QAccessible::Canvas);
    EXPECT_EQ(access->text(QAccessible::Name), "Drawing");
    EXPECT_EQ(access->text(QAccessible::Value), "");

    Drag({{1000, 1000}, {9000, 5000}});

    EXPECT_EQ(access->text(QAccessible::Value), "Tank, rect 1/2");
}

TEST_F(CanvasColours, FollowThePaletteAroundThePageAlone)
{
    ShowShapes("");
    QPalette dark;
    dark.setColor(QPalette::Mid, QColor(30, 30, 30));

    canvas.setPalette(dark);

    EXPECT_EQ(Picture().pixelColor(2, 2), QColor(30, 30, 30));
    EXPECT_EQ(ColourAt(5000, 5000), QColor(255, 255, 255));
}

} // namespace
