#include "apps/desktop/painting/PaintPlaceholder.h"

#include <QFont>
#include <QPen>

#include <algorithm>

namespace Desktop
{

void PaintPlaceholder(QPainter& painter, const QRectF& box, const QString& name)
{
    // The page is white whatever the palette is.
    constexpr QColor kInside(0xf0, 0xf0, 0xf0);
    constexpr QColor kLine(0xa0, 0xa0, 0xa0);
    constexpr QColor kText(0x50, 0x50, 0x50);
    constexpr double kHighestText = 400;
    constexpr double kLinesInBox = 4;
    painter.fillRect(box, kInside);
    QPen pen(kLine, 0, Qt::DashLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box);
    QFont font;
    font.setPixelSize(std::max(1, static_cast<int>(std::min(kHighestText, box.height() / kLinesInBox))));
    painter.setFont(font);
    painter.setPen(kText);
    painter.drawText(box, Qt::AlignCenter | Qt::TextWrapAnywhere, name);
}

} // namespace Desktop
