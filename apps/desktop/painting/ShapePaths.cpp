#include "apps/desktop/painting/ShapePaths.h"

namespace Desktop
{
namespace
{

QPointF PointOf(ReferenceHost::Point point)
{
    return {point.x, point.y};
}

} // namespace

QPainterPath PathOf(const ReferenceHost::Contour& contour)
{
    using Kind = ReferenceHost::ContourStep::Kind;
    QPainterPath path;
    // Where pieces overlap there is a hole.
    path.setFillRule(Qt::OddEvenFill);
    for (const ReferenceHost::ContourStep& step : contour)
    {
        switch (step.kind)
        {
        case Kind::Move:
            path.moveTo(PointOf(step.end));
            break;
        case Kind::Line:
            path.lineTo(PointOf(step.end));
            break;
        case Kind::Curve:
            path.cubicTo(PointOf(step.control1), PointOf(step.control2), PointOf(step.end));
            break;
        case Kind::Close:
            path.closeSubpath();
            break;
        }
    }
    return path;
}

QTransform TransformOf(const ReferenceHost::Transform& transform)
{
    return {transform.a, transform.b, transform.c, transform.d, transform.e, transform.f};
}

QRectF RectangleOf(const ReferenceHost::Box& box)
{
    return QRectF(box.left, box.top, box.width, box.height).normalized();
}

} // namespace Desktop
