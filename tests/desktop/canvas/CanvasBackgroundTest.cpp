#include "apps/desktop/canvas/CanvasBackground.h"

#include "tests/reference_host/document/FlatDrawing.h"

#include "reference_host/document/picture/DrawingPicture.h"

#include <QImage>

#include <gtest/gtest.h>

#include <string>

namespace
{

/// A red square that begins at (5, 5) cm, on a page of A4.
constexpr const char* kSquare = R"(<draw:rect svg:x="5cm" svg:y="5cm" svg:width="5cm" svg:height="5cm"/>)";

class CanvasBackgrounds : public testing::Test
{
protected:
    CanvasBackgrounds() { view.Fit({21000, 29700}, {300, 400}); }

    QImage Update(double ratio)
    {
        return background.Update({300, 400}, ratio, &page, view, QPalette()).toImage();
    }

    OpenedDrawing opened =
        FlatDrawing()
            .Defaults(
                R"(<style:graphic-properties draw:fill="solid" draw:fill-color="#ff0000" draw:stroke="none"/>)")
            .Page(kSquare)
            .Open();
    ReferenceHost::DrawingPicture picture = opened.drawing->ReadPicture();
    Desktop::PaintMaterials materials{picture.definitions};
    Desktop::CanvasPage page{picture.pages.at(0), materials};
    Desktop::CanvasView view;
    Desktop::CanvasBackground background;
};

TEST_F(CanvasBackgrounds, AreAsSharpAsTheScreen)
{
    const QImage painted = Update(2);

    EXPECT_EQ(painted.size(), QSize(600, 800));
    // No more than one pixel of the screen lies on the edge: those on either side are not mixed.
    const double edge = 2 * view.ToView(QRectF(5000, 5000, 0, 0)).left();
    const int row = static_cast<int>(2 * view.ToView(QRectF(0, 7500, 0, 0)).top());
    EXPECT_EQ(painted.pixelColor(static_cast<int>(edge) - 1, row), QColor(255, 255, 255));
    EXPECT_EQ(painted.pixelColor(static_cast<int>(edge) + 1, row), QColor(255, 0, 0));
}

TEST_F(CanvasBackgrounds, PaintOnlyWhatWasForgotten)
{
    const QImage before = Update(1);
    const QRectF square = view.ToView(QRectF(5000, 5000, 5000, 5000));
    view.MoveBy({50, 0});

    background.Forget(QRegion(square.toAlignedRect()));
    const QImage after = Update(1);

    // The forgotten part shows the page as it lies now, the rest as it was.
    EXPECT_EQ(after.pixelColor(square.topLeft().toPoint() + QPoint(5, 5)), QColor(255, 255, 255));
    EXPECT_EQ(after.pixelColor(5, 5), before.pixelColor(5, 5));
    EXPECT_EQ(after.pixelColor((square.bottomRight() + QPointF(20, -5)).toPoint()), QColor(255, 255, 255));
}

TEST_F(CanvasBackgrounds, AreStretchedAtOnceAndPaintedWhenForgotten)
{
    const QPointF fixed(150, 150);
    const auto zoom = [&](double factor)
    {
        view.ZoomAt(fixed, factor);
        background.Stretch(fixed, factor);
    };
    view.ZoomAt(fixed, 8);
    const QPoint corner = view.ToView(QRectF(5100, 5100, 0, 0)).topLeft().toPoint();
    ASSERT_FALSE(QRect(0, 0, 300, 400).contains(corner)) << "it is painted only after the page is smaller";
    static_cast<void>(Update(1));

    zoom(0.25);
    zoom(0.5);
    const QImage stretched = Update(1);
    const bool wasStretched = background.IsStretched();
    background.Forget();
    const QImage painted = Update(1);

    const QPoint inCorner = view.ToView(QRectF(5200, 5200, 0, 0)).topLeft().toPoint();
    const QPoint inMiddle = fixed.toPoint();
    EXPECT_TRUE(wasStretched);
    EXPECT_EQ(stretched.pixelColor(inMiddle), painted.pixelColor(inMiddle)) << "it was there before";
    EXPECT_EQ(stretched.pixelColor(inCorner), QColor(255, 255, 255));
    EXPECT_EQ(painted.pixelColor(inCorner), QColor(255, 0, 0));
    EXPECT_FALSE(background.IsStretched());
}

} // namespace
