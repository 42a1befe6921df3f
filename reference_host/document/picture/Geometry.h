#pragma once

#include "host/Export.h"

#include <vector>

namespace ReferenceHost
{

/// A place. Hundredths of a millimetre, to the right and downwards, where nothing else is said.
struct Point
{
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

/// A rectangle along the axes, in the units of Point.
struct Box
{
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const Box&, const Box&) = default;

    [[nodiscard]] Point At(double horizontalShare, double verticalShare) const noexcept
    {
        return {left + horizontalShare * width, top + verticalShare * height};
    }
};

/// Turns (x, y) into (a x + c y + e, b x + d y + f).
struct STYLEPROPERTIES_HOST_API Transform
{
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double e = 0;
    double f = 0;

    friend bool operator==(const Transform&, const Transform&) = default;

    [[nodiscard]] Point Map(Point point) const noexcept;

    /// This transform first, then `next`.
    [[nodiscard]] Transform Then(const Transform& next) const noexcept;

    /// The transform that turns one box into another; a side without extent in `from` is only moved.
    [[nodiscard]] static Transform Between(const Box& from, const Box& to) noexcept;
};

/// One step of a contour, from where the one before ended.
struct ContourStep
{
    enum class Kind
    {
        Move,  ///< Begins a new piece at `end`.
        Line,  ///< To `end`.
        Curve, ///< A cubic curve to `end`, by the two control points.
        Close  ///< Back to where the piece began; the points mean nothing.
    };

    Kind kind = Kind::Move;
    Point control1;
    Point control2;
    Point end;

    friend bool operator==(const ContourStep&, const ContourStep&) = default;
};

/// Lines and curves, in one piece or several; each piece begins with a move.
using Contour = std::vector<ContourStep>;

/// A piece of a shape that is filled and stroked as one.
struct ShapePart
{
    Contour contour;
    bool isFilled = true;
    bool isStroked = true;
    bool mayHaveArrows = true; ///< Of a line: false for what only leads to it.

    friend bool operator==(const ShapePart&, const ShapePart&) = default;
};

/// The contour with all its points turned by `transform`.
[[nodiscard]] STYLEPROPERTIES_HOST_API Contour Mapped(const Contour& contour, const Transform& transform);

/// The smallest box that holds all points of a contour, control points included; a box without extent at the
/// origin for an empty one.
[[nodiscard]] STYLEPROPERTIES_HOST_API Box BoundsOf(const Contour& contour);

} // namespace ReferenceHost
