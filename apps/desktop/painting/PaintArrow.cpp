#include "apps/desktop/painting/PaintArrow.h"

#include "apps/desktop/painting/ShapePaths.h"

#include <QLineF>
#include <QList>
#include <QPolygonF>
#include <QTransform>

#include <algorithm>

namespace Desktop
{
namespace
{

/// How wide an arrow is where nothing says.
constexpr double kUsualWidth = 300;

/// How much of an arrow the line does not reach into: its tip is narrower than the line.
constexpr double kCoveredShare = 0.8;

/// One end of a line.
struct End
{
    const ReferenceHost::MarkerDefinition* marker;
    double width;
    bool isCentred; ///< The middle of the arrow is at the end, not its tip.

    [[nodiscard]] double Height() const { return width * marker->viewBox.height / marker->viewBox.width; }
};

/// Takes `length` from the front of a line; what is shorter keeps its last piece.
void Shorten(QPolygonF& line, double length)
{
    while (line.size() > 2 && QLineF(line[0], line[1]).length() <= length)
    {
        length -= QLineF(line[0], line[1]).length();
        line.removeFirst();
    }
    const QLineF first(line[0], line[1]);
    if (first.length() > 0)
        line[0] = first.pointAt(std::min(1.0, length / first.length()));
}

/// The arrow at the front of a line, which becomes as much shorter.
QPainterPath TakeArrow(QPolygonF& line, const End& end)
{
    const QPointF tip = line.front();
    QPolygonF rest = line;
    Shorten(rest, end.Height());
    const QLineF outwards = rest.front() == tip ? QLineF(line[1], tip) : QLineF(rest.front(), tip);
    if (outwards.length() <= 0)
        return {};
    if (!end.isCentred)
        Shorten(line, end.Height() * kCoveredShare);
    const QRectF box = RectangleOf(end.marker->viewBox);
    const double scale = end.width / box.width();
    // A marker points up, which is 90 degrees for a line.
    QTransform place = QTransform::fromTranslate(tip.x(), tip.y());
    place.rotate(90 - outwards.angle());
    place.scale(scale, scale);
    place.translate(-box.center().x(), end.isCentred ? -box.center().y() : -box.top());
    QPainterPath arrow = place.map(PathOf(end.marker->contour));
    arrow.setFillRule(Qt::WindingFill);
    return arrow;
}

} // namespace

ArrowedLine AddArrows(const QPainterPath& path, const Workbench::LineLook& look,
                      const ReferenceHost::ShapeDetails& details, const PaintMaterials& materials)
{
    const auto widthOf = [](double given) { return given > 0 ? given : kUsualWidth; };
    const End start{materials.FindMarker(look.startArrow), widthOf(details.startArrowWidth),
                    details.isStartArrowCentred};
    const End end{materials.FindMarker(look.endArrow), widthOf(details.endArrowWidth),
                  details.isEndArrowCentred};
    if (start.marker == nullptr && end.marker == nullptr)
        return {path, {}};
    QList<QPolygonF> pieces = path.toSubpathPolygons();
    pieces.removeIf([](const QPolygonF& piece) { return piece.size() < 2; });
    if (pieces.isEmpty())
        return {path, {}};
    ArrowedLine result;
    result.arrows.setFillRule(Qt::WindingFill);
    if (start.marker != nullptr)
        result.arrows.addPath(TakeArrow(pieces.front(), start));
    if (end.marker != nullptr)
    {
        std::reverse(pieces.back().begin(), pieces.back().end());
        result.arrows.addPath(TakeArrow(pieces.back(), end));
        std::reverse(pieces.back().begin(), pieces.back().end());
    }
    for (const QPolygonF& piece : pieces)
        result.line.addPolygon(piece);
    return result;
}

} // namespace Desktop
