#pragma once

#include "reference_host/document/picture/Geometry.h"

namespace ReferenceHost
{

/// An ellipse along the axes. Its angles are degrees from the right, clockwise on the page.
struct Ellipse
{
    Point centre;
    double radiusX = 0;
    double radiusY = 0;

    [[nodiscard]] Point At(double degrees) const;
};

/// Draws a contour step by step. Steps that follow a closed piece without a move go on from where it began.
class ContourBuilder
{
public:
    void MoveTo(Point end);
    void LineTo(Point end);
    void CurveTo(Point control1, Point control2, Point end);

    /// A quadratic curve.
    void QuadraticTo(Point control, Point end);

    /// Follows an ellipse over `sweep` degrees, negative ones counterclockwise, with a curve for each quarter
    /// at the most. Draws a line to where it begins, or moves there.
    void Follow(const Ellipse& ellipse, double start, double sweep, bool isConnected);

    /// An arc to `end` on an ellipse with these radii that is turned by `rotation` degrees, as path data
    /// gives it. Radii that are too small grow as needed; without any it is a line.
    void ArcTo(Point radii, double rotation, bool isLarge, bool isClockwise, Point end);

    void Close();

    /// Where the next step begins.
    [[nodiscard]] Point GetCurrent() const noexcept { return current; }

    [[nodiscard]] bool IsEmpty() const noexcept { return contour.empty(); }

    /// Hands the contour over, and begins anew at the same place.
    [[nodiscard]] Contour Take();

private:
    void Begin();

    Contour contour;
    Point current;
    Point first;         ///< Where the open piece began.
    bool isOpen = false; ///< A piece was begun and not closed.
};

/// A rectangle; corners with a radius are rounded.
[[nodiscard]] STYLEPROPERTIES_HOST_API Contour RectangleContour(const Box& box, double cornerRadius = 0);

} // namespace ReferenceHost
