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

/// As many plain colours in place of stops.
QGradientStops Stepped(const QGradientStops& smooth, int steps)
{
    QGradientStops stops;
    for (int step = 0; step < steps; ++step)
    {
        const QColor colour = ColourAt(smooth, step / (steps - 1.0));
        // Two stops at one place would count as one.
        constexpr double kApart = 1e-6;
        stops.append({static_cast<double>(step) / steps + (step == 0 ? 0 : kApart), colour});
        stops.append({(step + 1.0) / steps, colour});
    }
    return stops;
}

/// The stops behind the border, which has the colour of the first.
QGradientStops StopsOf(const GradientDefinition& gradient, int steps)
{
    QGradientStops stops;
    for (const GradientDefinition::Stop& stop : gradient.stops)
    {
        const double place = gradient.border + (1 - gradient.border) * stop.place;
        stops.append({std::clamp(place, 0.0, 1.0), ColourOf(stop.colour)});
    }
    return steps > 1 ? Stepped(stops, steps) : stops;
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

/// The stops of an axial gradient, which begins in the middle and has its border outside.
QGradientStops OutwardStopsOf(const GradientDefinition& gradient, int steps)
{
    QGradientStops stops;
    for (const GradientDefinition::Stop& stop : gradient.stops)
        stops.append({std::clamp((1 - gradient.border) * stop.place, 0.0, 1.0), ColourOf(stop.colour)});
    return steps > 1 ? Stepped(stops, steps) : stops;
}

QBrush LinearBrush(const QRectF& box, const GradientDefinition& gradient, int steps)
{
    const double angle = RadiansOf(gradient);
    const QPointF direction(std::sin(angle), std::cos(angle));
    const double length = std::abs(box.width() * direction.x()) + std::abs(box.height() * direction.y());
    const QPointF reach = direction * (length / 2);
    if (gradient.kind == Kind::Linear)
    {
        QLinearGradient linear(box.center() - reach, box.center() + reach);
        linear.setStops(StopsOf(gradient, steps));
        return linear;
    }
    QLinearGradient axial(box.center(), box.center() + reach);
    axial.setSpread(QGradient::ReflectSpread);
    axial.setStops(OutwardStopsOf(gradient, steps));
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

QBrush RoundBrush(const QRectF& box, const GradientDefinition& gradient, int steps)
{
    QRadialGradient radial(QPointF(), 1);
    radial.setStops(FromMiddle(StopsOf(gradient, steps)));
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

/// Rectangles within each other, which no brush has. Those of a square gradient keep the proportions of the
/// box; the sides of the others are as far apart everywhere.
void PaintNested(QPainter& painter, const QPainterPath& path, const QRectF& box,
                 const GradientDefinition& gradient, int askedSteps)
{
    constexpr int kMostSteps = 64;
    const QGradientStops stops = StopsOf(gradient, 0);
    const double angle = RadiansOf(gradient);
    const double wide = std::abs(std::cos(angle));
    const double high = std::abs(std::sin(angle));
    const QSizeF size(box.width() * wide + box.height() * high, box.width() * high + box.height() * wide);
    const double least = std::min(size.width(), size.height());
    const QSizeF shrink = gradient.kind == Kind::Square ? size : QSizeF(least, least);
    // More steps than pixels cannot be told apart.
    const double scale = std::sqrt(std::abs(painter.deviceTransform().determinant()));
    const int visible = std::clamp(static_cast<int>(least * scale / 2), 2, kMostSteps);
    const int steps = askedSteps > 1 ? std::min(askedSteps, visible) : visible;
    painter.fillPath(path, stops.front().second);
    painter.setClipPath(path, Qt::IntersectClip);
    painter.setTransform(TurnedAbout(CentreOf(box, gradient), gradient), true);
    for (int step = 0; step < steps; ++step)
    {
        const double place = static_cast<double>(step) / (steps - 1);
        const QSizeF rest = size - shrink * (static_cast<double>(step) / steps);
        painter.fillRect(QRectF(QPointF(-rest.width() / 2, -rest.height() / 2), rest),
                         ColourAt(stops, place));
    }
}

} // namespace

void PaintGradient(QPainter& painter, const QPainterPath& path, const QRectF& box,
                   const GradientDefinition& gradient, int steps)
{
    if (gradient.kind == Kind::Linear || gradient.kind == Kind::Axial)
        painter.fillPath(path, LinearBrush(box, gradient, steps));
    else if (gradient.kind == Kind::Radial || gradient.kind == Kind::Ellipsoid)
        painter.fillPath(path, RoundBrush(box, gradient, steps));
    else
        PaintNested(painter, path, box, gradient, steps);
}

} // namespace Desktop
