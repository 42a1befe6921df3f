#include "reference_host/document/picture/Geometry.h"

#include <algorithm>

namespace ReferenceHost
{

Point Transform::Map(Point point) const noexcept
{
    return {a * point.x + c * point.y + e, b * point.x + d * point.y + f};
}

Transform Transform::Then(const Transform& next) const noexcept
{
    return {next.a * a + next.c * b, next.b * a + next.d * b,          next.a * c + next.c * d,
            next.b * c + next.d * d, next.a * e + next.c * f + next.e, next.b * e + next.d * f + next.f};
}

Transform Transform::Between(const Box& from, const Box& to) noexcept
{
    const double across = from.width == 0 ? 1 : to.width / from.width;
    const double down = from.height == 0 ? 1 : to.height / from.height;
    return {across, 0, 0, down, to.left - across * from.left, to.top - down * from.top};
}

Contour Mapped(const Contour& contour, const Transform& transform)
{
    Contour result = contour;
    for (ContourStep& step : result)
    {
        step.control1 = transform.Map(step.control1);
        step.control2 = transform.Map(step.control2);
        step.end = transform.Map(step.end);
    }
    return result;
}

Box BoundsOf(const Contour& contour)
{
    if (contour.empty())
        return {};
    Point low = contour.front().end;
    Point high = low;
    const auto add = [&](Point point)
    {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    };
    for (const ContourStep& step : contour)
    {
        if (step.kind == ContourStep::Kind::Close)
            continue;
        add(step.end);
        if (step.kind != ContourStep::Kind::Curve)
            continue;
        add(step.control1);
        add(step.control2);
    }
    return {low.x, low.y, high.x - low.x, high.y - low.y};
}

} // namespace ReferenceHost
