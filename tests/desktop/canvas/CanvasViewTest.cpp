#include "apps/desktop/canvas/CanvasView.h"

#include <gtest/gtest.h>

namespace
{

using Desktop::CanvasView;

TEST(CanvasViews, ShowTheWholePageInTheMiddle)
{
    CanvasView view;

    view.Fit({20000, 10000}, {848, 648});

    EXPECT_DOUBLE_EQ(view.GetScale(), 0.04);
    EXPECT_EQ(view.ToView(QRectF(0, 0, 20000, 10000)), QRectF(24, 124, 800, 400));
}

TEST(CanvasViews, AreTurnedBackToThePage)
{
    CanvasView view;
    view.Fit({20000, 10000}, {848, 648});

    EXPECT_EQ(view.ToPage(QPointF(424, 324)), QPointF(10000, 5000));
    EXPECT_EQ(view.GetTransform().map(QPointF(10000, 5000)), QPointF(424, 324));
}

TEST(CanvasViews, ZoomWithinLimits)
{
    CanvasView view;
    view.Fit({20000, 10000}, {848, 648});

    view.ZoomAt({424, 324}, 1e9);
    EXPECT_DOUBLE_EQ(view.GetScale(), 8);

    view.ZoomAt({424, 324}, 1e-9);
    EXPECT_DOUBLE_EQ(view.GetScale(), 0.0005);
    EXPECT_NEAR(view.ToPage(QPointF(424, 324)).x(), 10000, 1e-6);
}

TEST(CanvasViews, SurviveAViewWithoutRoom)
{
    CanvasView view;

    view.Fit({20000, 10000}, {0, 0});

    EXPECT_GT(view.GetScale(), 0);
}

} // namespace
