#include "apps/desktop/painting/PaintLine.h"

#include "apps/desktop/painting/PaintArrow.h"

#include <QPainterPathStroker>
#include <QPen>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace Desktop
{
namespace
{

using Look = Workbench::LineLook;

Qt::PenJoinStyle JoinOf(Look::Join join)
{
    if (join == Look::Join::Miter)
        return Qt::MiterJoin;
    return join == Look::Join::Round ? Qt::RoundJoin : Qt::BevelJoin;
}

Qt::PenCapStyle CapOf(Look::Cap cap)
{
    if (cap == Look::Cap::Square)
        return Qt::SquareCap;
    return cap == Look::Cap::Round ? Qt::RoundCap : Qt::FlatCap;
}

/// The dots and gaps of a dash, in widths of the line.
QVector<qreal> PatternOf(const ReferenceHost::DashDefinition& dash, double width, bool isRound)
{
    constexpr double kShortest = 0.01;
    QVector<qreal> pattern;
    const auto add = [&](int dots, const ReferenceHost::DashLength& length)
    {
        // Round ends reach over into the gaps.
        const double reach = isRound ? 1 : 0;
        const double dot = length.length == 0 ? 1 : length.At(width) / width;
        const double gap = dash.distance.length == 0 ? 1 : dash.distance.At(width) / width;
        for (int count = 0; count < dots; ++count)
            pattern << std::max(kShortest, dot - reach) << std::max(kShortest, gap + reach);
    };
    add(dash.firstDots, dash.firstLength);
    add(dash.secondDots, dash.secondLength);
    return pattern;
}

/// Gives a pen the dots of a dash, where they can be told apart.
void SetDash(QPen& pen, const ReferenceHost::DashDefinition& dash, double scale)
{
    constexpr double kShortestInPixels = 2;
    constexpr int kMostDots = 32;
    const bool isRound = dash.isRound || pen.capStyle() == Qt::RoundCap;
    if (dash.firstDots + dash.secondDots > kMostDots)
        return;
    const QVector<qreal> pattern = PatternOf(dash, pen.widthF(), isRound);
    double length = 0;
    for (const qreal piece : pattern)
        length += piece * pen.widthF();
    if (pattern.isEmpty() || length * scale < kShortestInPixels)
        return;
    if (dash.isRound)
        pen.setCapStyle(Qt::RoundCap);
    pen.setDashPattern(pattern);
}

} // namespace

void PaintLine(QPainter& painter, const QPainterPath& path, LineEnds ends, const Look& look,
               const ReferenceHost::ShapeDetails& details, const PaintMaterials& materials)
{
    const double scale = std::sqrt(std::abs(painter.worldTransform().determinant()));
    if (look.kind == Look::Kind::None || scale <= 0)
        return;
    const QColor colour = ColourOf(look.colour, look.transparency);
    QPen pen(colour, std::max(static_cast<double>(look.width), 1 / scale));
    pen.setJoinStyle(JoinOf(look.join));
    pen.setCapStyle(CapOf(look.cap));
    if (look.kind == Look::Kind::Dashed)
    {
        if (const auto* const dash = materials.FindDash(look.dash))
            SetDash(pen, *dash, scale);
    }
    const ArrowedLine arrowed =
        ends == LineEnds::Arrows ? AddArrows(path, look, details, materials) : ArrowedLine{path, {}};
    if (arrowed.arrows.isEmpty())
        return painter.strokePath(arrowed.line, pen);
    if (look.transparency == 0)
    {
        painter.strokePath(arrowed.line, pen);
        return painter.fillPath(arrowed.arrows, colour);
    }
    // Where both overlap, what lets through must not be painted twice.
    QPainterPathStroker stroker(pen);
    painter.fillPath(stroker.createStroke(arrowed.line).united(arrowed.arrows), colour);
}

} // namespace Desktop
