#include "apps/desktop/painting/PaintGradient.h"

#include "apps/desktop/painting/PaintMaterials.h"

#include <QBrush>
#include <QLinearGradient>
#include <QRadialGradient>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Desktop
{
namespace
{

using ReferenceHost::GradientDefinition;
using Kind = GradientDefinition::Kind;

/// The stops behind the border, which has the colour of the first.
QGradientStops StopsOf(const GradientDefinition& gradient)
{
    QGradientStops stops;
    for (const GradientDefinition::Stop& stop : gradient.stops)
    {
        const double place = gradient.border + (1 - gradient.border) * stop.place;
        stops.append({std::clamp(place, 0.0, 1.0), ColourOf(stop.colour)});
    }
    return stops;
}

/// From the rim, where a gradient begins, to the middle: the other way round.
QGradientStops FromMiddle(QGradientStops stops)
{
    std::reverse(stops.begin(), stops.end());
    for (QGradientStop& stop : stops)
        stop.first = 1 - stop.first;
    return stops;
}

double RadiansOf(const GradientDefinition& gradient)
{
    return gradient.angle * std::numbers::pi / 180;
}

QBrush LinearBrush(const QRectF& box, const GradientDefinition& gradient)
{
    const double angle = RadiansOf(gradient);
    const QPointF direction(std::sin(angle), std::cos(angle));
    const double length = std::abs(box.width() * direction.x()) + std::abs(box.height() * direction.y());
    const QPointF reach = direction * (length / 2);
    if (gradient.kind == Kind::Linear)
    {
        QLinearGradient linear(box.center() - reach, box.center() + reach);
        linear.setStops(StopsOf(gradient));
        return linear;
    }
    QLinearGradient axial(box.center(), box.center() + reach);
    axial.setSpread(QGradient::ReflectSpread);
    axial.setStops(FromMiddle(StopsOf(gradient)));
    return axial;
}

QPointF CentreOf(const QRectF& box, const GradientDefinition& gradient)
{
    return {box.left() + gradient.centre.x * box.width(), box.top() + gradient.centre.y * box.height()};
}

/// The box turned as the gradient is, about the middle of the gradient.
QTransform TurnedAbout(QPointF centre, const GradientDefinition& gradient)
{
    return QTransform::fromTranslate(centre.x(), centre.y()).rotate(-gradient.angle);
}

QBrush RoundBrush(const QRectF& box, const GradientDefinition& gradient)
{
    QRadialGradient radial(QPointF(), 1);
    radial.setStops(FromMiddle(StopsOf(gradient)));
    QBrush brush(radial);
    QTransform place = TurnedAbout(CentreOf(box, gradient), gradient);
    const double diagonal = std::hypot(box.width(), box.height()) / 2;
    if (gradient.kind == Kind::Radial)
        place.scale(diagonal, diagonal);
    else
        place.scale(box.width() * std::numbers::sqrt2 / 2, box.height() * std::numbers::sqrt2 / 2);
    brush.setTransform(place);
    return brush;
}

/// The colour at a place between the stops.
QColor ColourAt(const QGradientStops& stops, double place)
{
    const auto next = std::find_if(stops.begin(), stops.end(),
                                   [&](const QGradientStop& stop) { return stop.first >= place; });
    if (next == stops.end())
        return stops.back().second;
    if (next == stops.begin() || next->first <= 0)
        return next->second;
    const QGradientStop& before = *(next - 1);
    const double share = (place - before.first) / std::max(1e-9, next->first - before.first);
    const auto mix = [&](int from, int to)
    { return static_cast<int>(std::lround(from + share * (to - from))); };
    return {mix(before.second.red(), next->second.red()), mix(before.second.green(), next->second.green()),
            mix(before.second.blue(), next->second.blue())};
}

/// Squares and rectangles within each other: no brush has them.
void PaintNested(QPainter& painter, const QPainterPath& path, const QRectF& box,
                 const GradientDefinition& gradient)
{
    constexpr int kSteps = 64;
    const QGradientStops stops = StopsOf(gradient);
    const double angle = RadiansOf(gradient);
    const double wide = std::abs(std::cos(angle));
    const double high = std::abs(std::sin(angle));
    QSizeF size(box.width() * wide + box.height() * high, box.width() * high + box.height() * wide);
    if (gradient.kind == Kind::Square)
        size = QSizeF(std::max(size.width(), size.height()), std::max(size.width(), size.height()));
    painter.fillPath(path, stops.front().second);
    painter.setClipPath(path, Qt::IntersectClip);
    painter.setTransform(TurnedAbout(CentreOf(box, gradient), gradient), true);
    for (int step = 0; step < kSteps; ++step)
    {
        const double place = static_cast<double>(step) / (kSteps - 1);
        const QSizeF rest = size * (1 - static_cast<double>(step) / kSteps);
        painter.fillRect(QRectF(QPointF(-rest.width() / 2, -rest.height() / 2), rest),
                         ColourAt(stops, place));
    }
}

} // namespace

void PaintGradient(QPainter& painter, const QPainterPath& path, const QRectF& box,
                   const GradientDefinition& gradient)
{
    if (gradient.kind == Kind::Linear || gradient.kind == Kind::Axial)
        painter.fillPath(path, LinearBrush(box, gradient));
    else if (gradient.kind == Kind::Radial || gradient.kind == Kind::Ellipsoid)
        painter.fillPath(path, RoundBrush(box, gradient));
    else
        PaintNested(painter, path, box, gradient);
}

} // namespace Desktop
