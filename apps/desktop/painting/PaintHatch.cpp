#include "apps/desktop/painting/PaintHatch.h"

#include "apps/desktop/painting/PaintMaterials.h"

#include <QLineF>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Desktop
{
namespace
{

/// The lines of one direction, so that one goes through the middle of the box.
void PaintLines(QPainter& painter, const QRectF& box, double angle, double distance)
{
    const double reach = std::hypot(box.width(), box.height()) / 2;
    const QTransform place = QTransform::fromTranslate(box.center().x(), box.center().y()).rotate(-angle);
    const int count = static_cast<int>(reach / distance);
    std::vector<QLineF> lines;
    for (int line = -count; line <= count; ++line)
        lines.push_back(place.map(QLineF(-reach, line * distance, reach, line * distance)));
    painter.drawLines(lines.data(), static_cast<int>(lines.size()));
}

} // namespace

void PaintHatch(QPainter& painter, const QPainterPath& path, const QRectF& box,
                const ReferenceHost::HatchDefinition& hatch)
{
    constexpr double kClosestInPixels = 2;
    constexpr std::array<double, 3> kFurther{0, 90, 45};
    const double scale = std::sqrt(std::abs(painter.worldTransform().determinant()));
    if (scale <= 0)
        return;
    painter.setClipPath(path, Qt::IntersectClip);
    QPen pen(ColourOf(hatch.colour), 0);
    pen.setCosmetic(true);
    painter.setPen(pen);
    // Lines that are closer than pixels can show would only take time.
    const double distance = std::max(hatch.distance, kClosestInPixels / scale);
    for (std::size_t direction = 0; direction < static_cast<std::size_t>(std::clamp(hatch.directions, 1, 3));
         ++direction)
        PaintLines(painter, box, hatch.angle + kFurther.at(direction), distance);
}

} // namespace Desktop
