#include "reference_host/document/picture/ContourBuilder.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr double kQuarter = 90;

/// Places that are no farther apart are one, whatever the calculation left over.
constexpr double kSamePlace = 1e-6;

double Radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

double Degrees(double radians)
{
    return radians * 180 / std::numbers::pi;
}

/// The direction of travel at a place of an ellipse, for growing angles.
Point TangentAt(const Ellipse& ellipse, double degrees)
{
    const double angle = Radians(degrees);
    return {-ellipse.radiusX * std::sin(angle), ellipse.radiusY * std::cos(angle)};
}

} // namespace

Point Ellipse::At(double degrees) const
{
    const double angle = Radians(degrees);
    return {centre.x + radiusX * std::cos(angle), centre.y + radiusY * std::sin(angle)};
}

void ContourBuilder::MoveTo(Point end)
{
    contour.push_back({ContourStep::Kind::Move, {}, {}, end});
    current = first = end;
    isOpen = true;
}

void ContourBuilder::Begin()
{
    if (!isOpen)
        MoveTo(current);
}

void ContourBuilder::LineTo(Point end)
{
    Begin();
    contour.push_back({ContourStep::Kind::Line, {}, {}, end});
    current = end;
}

void ContourBuilder::CurveTo(Point control1, Point control2, Point end)
{
    Begin();
    contour.push_back({ContourStep::Kind::Curve, control1, control2, end});
    current = end;
}

void ContourBuilder::QuadraticTo(Point control, Point end)
{
    const Point from = current;
    const auto between = [&](Point outer) {
        return Point{outer.x + 2 * (control.x - outer.x) / 3, outer.y + 2 * (control.y - outer.y) / 3};
    };
    CurveTo(between(from), between(end), end);
}

void ContourBuilder::Follow(const Ellipse& ellipse, double start, double sweep, bool isConnected)
{
    const Point from = ellipse.At(start);
    if (!isConnected || !isOpen)
        MoveTo(from);
    else if (std::hypot(from.x - current.x, from.y - current.y) > kSamePlace)
        LineTo(from);
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / kQuarter - 1e-9)));
    const double step = sweep / pieces;
    const double reach = 4.0 / 3.0 * std::tan(Radians(step) / 4);
    for (int piece = 0; piece < pieces; ++piece)
    {
        const double begin = start + step * piece;
        const Point here = ellipse.At(begin);
        const Point there = ellipse.At(begin + step);
        const Point leaving = TangentAt(ellipse, begin);
        const Point arriving = TangentAt(ellipse, begin + step);
        CurveTo({here.x + reach * leaving.x, here.y + reach * leaving.y},
                {there.x - reach * arriving.x, there.y - reach * arriving.y}, there);
    }
}

void ContourBuilder::ArcTo(Point radii, double rotation, bool isLarge, bool isClockwise, Point end)
{
    Begin();
    Point radius{std::abs(radii.x), std::abs(radii.y)};
    if (radius.x == 0 || radius.y == 0 || end == current)
        return LineTo(end);
    // In a frame that is turned with the ellipse and centred between the ends.
    const double cosine = std::cos(Radians(rotation));
    const double sine = std::sin(Radians(rotation));
    const Point half{(current.x - end.x) / 2, (current.y - end.y) / 2};
    const Point from{cosine * half.x + sine * half.y, -sine * half.x + cosine * half.y};
    const double excess = std::hypot(from.x / radius.x, from.y / radius.y);
    const double growth = std::max(1.0, excess);
    radius = {radius.x * growth, radius.y * growth};
    const double share = std::hypot(from.x / radius.x, from.y / radius.y);
    const double distance =
        std::sqrt(std::max(0.0, 1 / (share * share) - 1)) * (isLarge == isClockwise ? -1 : 1);
    const Ellipse ellipse{{distance * radius.x * from.y / radius.y, -distance * radius.y * from.x / radius.x},
                          radius.x,
                          radius.y};
    const auto angleOf = [&](Point point)
    {
        return Degrees(
            std::atan2((point.y - ellipse.centre.y) / radius.y, (point.x - ellipse.centre.x) / radius.x));
    };
    const double start = angleOf(from);
    double sweep = angleOf({-from.x, -from.y}) - start;
    if (isClockwise && sweep < 0)
        sweep += 360;
    else if (!isClockwise && sweep > 0)
        sweep -= 360;
    ContourBuilder arc;
    arc.Follow(ellipse, start, sweep, false);
    const Transform back{cosine, sine, -sine, cosine, (current.x + end.x) / 2, (current.y + end.y) / 2};
    for (const ContourStep& step : Mapped(arc.Take(), back))
    {
        if (step.kind == ContourStep::Kind::Curve)
            CurveTo(step.control1, step.control2, step.end);
    }
    contour.back().end = current = end;
}

void ContourBuilder::Close()
{
    if (!isOpen)
        return;
    contour.push_back({ContourStep::Kind::Close, {}, {}, {}});
    current = first;
    isOpen = false;
}

Contour ContourBuilder::Take()
{
    isOpen = false;
    return std::exchange(contour, {});
}

Contour RectangleContour(const Box& box, double cornerRadius)
{
    const double radius = std::clamp(cornerRadius, 0.0, std::min(box.width, box.height) / 2);
    ContourBuilder builder;
    if (radius <= 0)
    {
        builder.MoveTo(box.At(0, 0));
        builder.LineTo(box.At(1, 0));
        builder.LineTo(box.At(1, 1));
        builder.LineTo(box.At(0, 1));
        builder.Close();
        return builder.Take();
    }
    const double right = box.left + box.width;
    const double bottom = box.top + box.height;
    builder.Follow({{right - radius, box.top + radius}, radius, radius}, -90, 90, false);
    builder.Follow({{right - radius, bottom - radius}, radius, radius}, 0, 90, true);
    builder.Follow({{box.left + radius, bottom - radius}, radius, radius}, 90, 90, true);
    builder.Follow({{box.left + radius, box.top + radius}, radius, radius}, 180, 90, true);
    builder.Close();
    return builder.Take();
}

} // namespace ReferenceHost
