#include "tests/desktop/canvas/CanvasFixture.h"

#include "reference_host/document/DrawingObject.h"

#include <QApplication>
#include <QMouseEvent>

namespace
{

/// Three squares of 2 cm at (2, 2), (6, 2) and (10, 2) cm; the third lies in a group.
constexpr const char* kSquares =
    R"(<draw:rect svg:x="2cm" svg:y="2cm" svg:width="2cm" svg:height="2cm"/>)"
    R"(<draw:rect svg:x="6cm" svg:y="2cm" svg:width="2cm" svg:height="2cm"/>)"
    R"(<draw:g><draw:rect svg:x="10cm" svg:y="2cm" svg:width="2cm" svg:height="2cm"/></draw:g>)";

using Canvas = CanvasTest;

TEST_F(Canvas, SelectsWhatIsClicked)
{
    ShowShapes(kSquares);

    Click(7000, 3000);

    EXPECT_EQ(Selected(), "1/2");
}

TEST_F(Canvas, SelectsTheTopmostOfSeveral)
{
    ShowShapes(
        R"(<draw:rect svg:width="5cm" svg:height="5cm"/><draw:rect svg:width="5cm" svg:height="5cm"/>)");

    Click(1000, 1000);

    EXPECT_EQ(Selected(), "1/2");
}

TEST_F(Canvas, AddsAndTakesAwayWithShift)
{
    ShowShapes(kSquares);

    Click(11000, 3000);
    Click(3000, 3000, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "1/1 1/3/1");

    Click(11000, 3000, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "1/1");
}

TEST_F(Canvas, SelectsNothingByAClickBesideEverything)
{
    ShowShapes(kSquares);
    Click(3000, 3000);

    Click(15000, 15000);

    EXPECT_EQ(Selected(), "");
}

TEST_F(Canvas, TellsNothingWhenTheSelectionStaysTheSame)
{
    ShowShapes(kSquares);

    Click(3000, 3000);
    Click(3500, 3500);

    EXPECT_EQ(told.size(), 1U);
}

TEST_F(Canvas, SelectsWhatLiesWhollyInTheRubberBand)
{
    ShowShapes(kSquares);

    Drag({{1000, 1000}, {5000, 5000}, {9000, 5000}});

    EXPECT_EQ(Selected(), "1/1 1/2");
}

TEST_F(Canvas, LeavesOutWhatTheRubberBandOnlyTouches)
{
    ShowShapes(kSquares);

    Drag({{1000, 1000}, {7000, 5000}});

    EXPECT_EQ(Selected(), "1/1");
}

TEST_F(Canvas, AddsTheRubberBandWithShift)
{
    ShowShapes(kSquares);
    Click(3000, 3000);

    Drag({{9000, 1000}, {13000, 5000}}, Qt::LeftButton, Qt::ShiftModifier);

    EXPECT_EQ(Selected(), "1/1 1/3/1");
}

TEST_F(Canvas, PaintsTheRubberBandWhileItIsDrawn)
{
    ShowShapes(kSquares);
    const QColor before = ColourAt(5000, 6000);
    const QPointF from = canvas.ToWidget({1000, 5000});
    const QPointF to = canvas.ToWidget({9000, 7000});

    QMouseEvent press(QEvent::MouseButtonPress, from, canvas.mapToGlobal(from), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &press);
    QMouseEvent move(QEvent::MouseMove, to, canvas.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&canvas, &move);

    EXPECT_NE(ColourAt(5000, 6000), before);
}

TEST_F(Canvas, SelectsEverythingOnThePageByKeys)
{
    ShowShapes(kSquares);

    PressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "1/1 1/2 1/3/1");

    PressKey(Qt::Key_Escape);
    EXPECT_EQ(Selected(), "");
}

TEST_F(Canvas, TellsNothingWhenItIsToldWhatIsSelected)
{
    ShowShapes(kSquares);

    canvas.SetSelectedObjects({&session->GetDrawing().GetObjects().front()});

    EXPECT_EQ(Selected(), "-");
}

TEST_F(Canvas, PaintsHandlesAroundWhatIsSelected)
{
    ShowShapes(kSquares);
    EXPECT_EQ(ColourAt(2150, 2150), QColor(255, 0, 0));

    canvas.SetSelectedObjects({&session->GetDrawing().GetObjects().front()});

    // The middle of a handle is white.
    EXPECT_EQ(ColourAt(2000, 2000), QColor(255, 255, 255));
    EXPECT_EQ(ColourAt(4000, 4000), QColor(255, 255, 255));
}

TEST_F(Canvas, KeepsWhatIsUnderThePointerWhileZooming)
{
    ShowShapes(kSquares);
    const QPointF before = canvas.ToWidget({7000, 3000});
    const double centimetre = canvas.ToWidget({8000, 3000}).x() - before.x();

    Turn({7000, 3000}, 3, Qt::ControlModifier);

    EXPECT_NEAR(canvas.ToWidget({7000, 3000}).x(), before.x(), 1e-6);
    EXPECT_NEAR(canvas.ToWidget({7000, 3000}).y(), before.y(), 1e-6);
    EXPECT_NEAR(canvas.ToWidget({8000, 3000}).x() - before.x(), centimetre * 1.25 * 1.25 * 1.25, 1e-6);
}

TEST_F(Canvas, MovesThePageByTheWheel)
{
    ShowShapes(kSquares);
    const QPointF before = canvas.ToWidget({});

    Turn({7000, 3000}, -1);
    EXPECT_EQ(canvas.ToWidget({}), before + QPointF(0, -60));

    Turn({7000, 3000}, -1, Qt::ShiftModifier);
    EXPECT_EQ(canvas.ToWidget({}), before + QPointF(-60, -60));
}

TEST_F(Canvas, MovesThePageByTheMiddleButton)
{
    ShowShapes(kSquares);
    const QPointF before = canvas.ToWidget({2000, 2000});
    const QPointF after = canvas.ToWidget({4000, 5000});

    Drag({{2000, 2000}, {4000, 5000}}, Qt::MiddleButton);

    const QPointF moved = canvas.ToWidget({2000, 2000}) - before;
    EXPECT_NEAR(moved.x(), (after - before).x(), 1);
    EXPECT_NEAR(moved.y(), (after - before).y(), 1);
    EXPECT_EQ(Selected(), "-");
}

TEST_F(Canvas, MovesThePageByTheSpaceBar)
{
    ShowShapes(kSquares);
    const QPointF before = canvas.ToWidget({});

    PressKey(Qt::Key_Space);
    Drag({{3000, 3000}, {5000, 3000}});

    EXPECT_GT(canvas.ToWidget({}).x(), before.x());
    EXPECT_EQ(Selected(), "-");
}

TEST_F(Canvas, PaintsWhatComesIntoViewWhenItIsMoved)
{
    ShowShapes(kSquares);
    canvas.ZoomBy(3);
    static_cast<void>(Picture());

    for (int turn = 0; turn < 5; ++turn)
        Turn({7000, 3000}, 1);
    const QImage moved = Picture();
    canvas.RefreshStyles();

    EXPECT_EQ(moved, Picture());
}

TEST_F(Canvas, ShowsOtherPages)
{
    Show(
        FlatDrawing()
            .Defaults(
                R"(<style:graphic-properties draw:fill="solid" draw:fill-color="#0000ff" draw:stroke="none"/>)")
            .Page("")
            .Page(R"(<draw:rect svg:width="5cm" svg:height="5cm"/>)"));
    EXPECT_EQ(canvas.PageCount(), 2);
    EXPECT_EQ(ColourAt(1000, 1000), QColor(255, 255, 255));

    PressKey(Qt::Key_PageDown);

    EXPECT_EQ(canvas.CurrentPage(), 1);
    EXPECT_EQ(ColourAt(1000, 1000), QColor(0, 0, 255));
}

TEST_F(Canvas, PassesOverPagesThatThereAreNot)
{
    ShowShapes(kSquares);

    canvas.SetPage(1);
    canvas.SetPage(-1);

    EXPECT_EQ(canvas.CurrentPage(), 0);
}

TEST_F(Canvas, ShowsNothingWithoutADrawing)
{
    EXPECT_EQ(canvas.PageCount(), 0);

    Click(1000, 1000);
    PressKey(Qt::Key_A, Qt::ControlModifier);
    Drag({{0, 0}, {5000, 5000}});

    EXPECT_EQ(Selected(), "-");
    EXPECT_EQ(Picture().size(), canvas.size());
}

} // namespace
