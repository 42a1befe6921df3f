#include "apps/desktop/painting/PaintHandles.h"

#include <array>

namespace Desktop
{
namespace
{

constexpr double kHandleSize = 7;

/// What is smaller than this many pixels gets handles at its corners alone.
constexpr double kRoomForEight = 4 * kHandleSize;

} // namespace

void PaintHandles(QPainter& painter, const QRectF& around, const QPalette& palette)
{
    const QColor colour = palette.color(QPalette::Highlight);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(colour, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(around);
    painter.setBrush(Qt::white);
    constexpr std::array<double, 3> kShares{0, 0.5, 1};
    for (const double across : kShares)
    {
        for (const double down : kShares)
        {
            const bool isMiddle = across == 0.5 && down == 0.5;
            const bool isTooClose = (across == 0.5 && around.width() < kRoomForEight) ||
                                    (down == 0.5 && around.height() < kRoomForEight);
            if (isMiddle || isTooClose)
                continue;
            const QPointF place(around.left() + across * around.width(),
                                around.top() + down * around.height());
            painter.drawRect(
                QRectF(place.x() - kHandleSize / 2, place.y() - kHandleSize / 2, kHandleSize, kHandleSize));
        }
    }
    painter.restore();
}

void PaintRubberBand(QPainter& painter, const QRectF& band, const QPalette& palette)
{
    QColor inside = palette.color(QPalette::Highlight);
    painter.setPen(QPen(inside, 1));
    inside.setAlpha(48);
    painter.setBrush(inside);
    painter.drawRect(band);
}

} // namespace Desktop
