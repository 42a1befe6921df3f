#include "apps/desktop/canvas/CanvasView.h"

#include <algorithm>

namespace Desktop
{
namespace
{

constexpr double kMargin = 24;
constexpr double kSmallestScale = 0.0005;
constexpr double kLargestScale = 8;

} // namespace

void CanvasView::Fit(QSizeF page, QSizeF viewSize)
{
    const double across = (viewSize.width() - 2 * kMargin) / std::max(1.0, page.width());
    const double down = (viewSize.height() - 2 * kMargin) / std::max(1.0, page.height());
    scale = std::clamp(std::min(across, down), kSmallestScale, kLargestScale);
    // Whole pixels keep the edges of the page sharp.
    origin = QPointF(
        ((QPointF(viewSize.width(), viewSize.height()) - QPointF(page.width(), page.height()) * scale) / 2)
            .toPoint());
}

void CanvasView::ZoomAt(QPointF fixed, double factor)
{
    const QPointF onPage = ToPage(fixed);
    scale = std::clamp(scale * factor, kSmallestScale, kLargestScale);
    origin = fixed - onPage * scale;
}

void CanvasView::MoveBy(QPointF pixels)
{
    origin += pixels;
}

QTransform CanvasView::GetTransform() const
{
    return {scale, 0, 0, scale, origin.x(), origin.y()};
}

QPointF CanvasView::ToPage(QPointF inView) const
{
    return (inView - origin) / scale;
}

QRectF CanvasView::ToPage(const QRectF& inView) const
{
    return {ToPage(inView.topLeft()), inView.size() / scale};
}

QRectF CanvasView::ToView(const QRectF& onPage) const
{
    return {onPage.topLeft() * scale + origin, onPage.size() * scale};
}

} // namespace Desktop
