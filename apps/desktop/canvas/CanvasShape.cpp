#include "apps/desktop/canvas/CanvasShape.h"

#include "apps/desktop/painting/ShapePaths.h"
#include "reference_host/document/DrawingObject.h"

#include <QPainterPathStroker>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace Desktop
{
namespace
{

/// How far beyond its outline a shape may be painted: half its line, and its arrows.
double ReachOf(const Workbench::LineLook& line, const ReferenceHost::ShapeDetails& details)
{
    // An arrow is about as high as it is wide, and at most a few times.
    constexpr double kHeightOfArrows = 3;
    constexpr double kUsualArrow = 300;
    const bool hasArrows = !line.startArrow.empty() || !line.endArrow.empty();
    const double arrow =
        hasArrows ? std::max({details.startArrowWidth, details.endArrowWidth, kUsualArrow}) : 0;
    // Sharp corners reach farther than half the width.
    return 2.0 * line.width + kHeightOfArrows * arrow;
}

} // namespace

CanvasShape::CanvasShape(const ReferenceHost::ShapePicture& shapePicture, Workbench::LookReader& lookReader)
    : picture(&shapePicture), reader(&lookReader), toPage(TransformOf(shapePicture.toPage))
{
    for (const ReferenceHost::ShapePart& part : picture->parts)
    {
        Part& added =
            parts.emplace_back(Part{PathOf(part.contour), part.isFilled, part.isStroked, part.mayHaveArrows});
        // A line along an axis has no area, and would not be united with others.
        const QRectF extent = toPage.map(added.path).boundingRect();
        constexpr double kThinnest = 0.5;
        const QRectF visible(extent.topLeft(), QSizeF(std::max(extent.width(), kThinnest),
                                                      std::max(extent.height(), kThinnest)));
        bounds |= visible;
    }
}

const Workbench::ShapeLook& CanvasShape::GetLook()
{
    if (!isLookKnown)
        TakeLook(reader->Read(*picture->object));
    return look;
}

bool CanvasShape::RefreshLook()
{
    if (!isLookKnown)
        return false;
    Workbench::ShapeLook now = reader->Read(*picture->object);
    if (now == look)
        return false;
    TakeLook(std::move(now));
    return true;
}

void CanvasShape::TakeLook(Workbench::ShapeLook now)
{
    if (now.paragraphs != look.paragraphs || now.runs != look.runs)
        text.reset();
    look = std::move(now);
    isLookKnown = true;
    paintedBounds = PaintedOutline();
    if (text != nullptr)
        paintedBounds |= toPage.mapRect(text->GetBounds());
    else if (!look.paragraphs.empty())
        paintedBounds |= EstimateText();
}

QRectF CanvasShape::PaintedOutline() const
{
    const double reach = ReachOf(look.line, picture->details);
    const QRectF outline = bounds.adjusted(-reach, -reach, reach, reach);
    const auto& shadow = picture->details.shadow;
    return shadow ? outline | outline.translated(shadow->offset.x, shadow->offset.y) : outline;
}

const ShapeText* CanvasShape::GetText()
{
    const Workbench::ShapeLook& current = GetLook();
    if (text == nullptr && !current.paragraphs.empty())
    {
        text = std::make_unique<ShapeText>(*picture, current);
        // Now that it is known where it is, shapes beside it need not be painted with it.
        paintedBounds = PaintedOutline() | toPage.mapRect(text->GetBounds());
    }
    return text.get();
}

const QRectF& CanvasShape::GetPaintedBounds()
{
    static_cast<void>(GetLook());
    return paintedBounds;
}

QRectF CanvasShape::EstimateText() const
{
    constexpr double kHundredthMmInATenthPoint = 2540.0 / 720.0;
    constexpr double kWidestCharacter = 1.1;
    constexpr double kHighestLine = 2;
    const QRectF area = RectangleOf(picture->textArea);
    const double room =
        std::max(1.0, area.width() - picture->details.paddingLeft - picture->details.paddingRight);
    double width = 0;
    double height = 0;
    for (std::size_t run = 0; run < std::min(look.runs.size(), picture->runTexts.size()); ++run)
    {
        const double size = look.runs[run].size * kHundredthMmInATenthPoint;
        const double length = static_cast<double>(picture->runTexts[run].size()) * size * kWidestCharacter;
        width += length;
        const double breaks = static_cast<double>(std::ranges::count(picture->runTexts[run].Wide(), L'\n'));
        height += (1 + breaks + length / room) * size * kHighestLine;
    }
    for (const ReferenceHost::ListLabel& label : picture->labels)
        width = std::max(width, label.indent);
    for (const Workbench::ParagraphLook& paragraph : look.paragraphs)
    {
        width = std::max(width, static_cast<double>(std::abs(paragraph.leftIndent)));
        height += std::max(0, paragraph.spaceBefore) + std::max(0, paragraph.spaceAfter);
    }
    // Wherever it stands, it begins at a side of the area or in the middle.
    const double across = picture->details.isWrapped && !picture->isLine ? 0 : width;
    const double turned = picture->textAngle == 0 ? 0 : width;
    return toPage.mapRect(area.adjusted(-across, -height - turned, across, height + turned));
}

bool CanvasShape::IsAt(QPointF onPage, double tolerance)
{
    const Workbench::ShapeLook& current = GetLook();
    const double reach = tolerance + current.line.width / 2.0;
    if (!paintedBounds.adjusted(-reach, -reach, reach, reach).contains(onPage))
        return false;
    const ShapeText* const set = GetText();
    bool isInvertible = false;
    const QPointF point = toPage.inverted(&isInvertible).map(onPage);
    if (!isInvertible)
        return false;
    if (set != nullptr && set->GetBounds().contains(point))
        return true;
    if (!bounds.adjusted(-reach, -reach, reach, reach).contains(onPage))
        return false;
    const bool hasInside = current.inside.kind != Workbench::InsideLook::Kind::None ||
                           picture->image != nullptr || !picture->placeholder.empty();
    QPainterPathStroker stroker;
    stroker.setWidth(2 * reach);
    return std::ranges::any_of(parts,
                               [&](const Part& part)
                               {
                                   return (part.isFilled && hasInside && part.path.contains(point)) ||
                                          stroker.createStroke(part.path).contains(point);
                               });
}

} // namespace Desktop
