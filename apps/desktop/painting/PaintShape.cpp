#include "apps/desktop/painting/PaintShape.h"

#include "apps/desktop/painting/PaintInside.h"
#include "apps/desktop/painting/PaintLine.h"
#include "apps/desktop/painting/PaintPlaceholder.h"
#include "apps/desktop/painting/ShapePaths.h"

#include <algorithm>
#include <cmath>

namespace Desktop
{
namespace
{

/// Text that is lower than this many pixels cannot be read and takes the most time of all.
constexpr double kLowestText = 3;

bool IsTextVisible(const QPainter& painter, const Workbench::ShapeLook& look)
{
    constexpr double kHundredthMmInATenthPoint = 2540.0 / 720.0;
    const double scale = std::sqrt(std::abs(painter.worldTransform().determinant()));
    return std::ranges::any_of(look.runs, [&](const Workbench::RunLook& run)
                               { return run.size * kHundredthMmInATenthPoint * scale >= kLowestText; });
}

/// What the shape throws on what is behind it: its inside, and its line where it is not filled.
void PaintShadow(QPainter& painter, CanvasShape& shape, const ReferenceHost::ShapeDetails::Shadow& shadow,
                 PaintMaterials& materials)
{
    const ReferenceHost::ShapePicture& picture = shape.GetPicture();
    Workbench::LineLook line = shape.GetLook().line;
    line.colour = shadow.colour;
    line.transparency = shadow.transparency;
    const bool hasInside =
        shape.GetLook().inside.kind != Workbench::InsideLook::Kind::None || picture.image != nullptr;
    painter.save();
    painter.translate(shadow.offset.x, shadow.offset.y);
    painter.setTransform(shape.GetTransform(), true);
    for (const CanvasShape::Part& part : shape.GetParts())
    {
        if (part.isFilled && hasInside)
            painter.fillPath(part.path, ColourOf(shadow.colour, shadow.transparency));
        else if (part.isStroked)
            PaintLine(painter, part.path, LineEnds::Plain, line, picture.details, materials);
    }
    painter.restore();
}

/// The picture of a shape, or what stands for what cannot be shown.
void PaintContent(QPainter& painter, const ReferenceHost::ShapePicture& picture, PaintMaterials& materials)
{
    const QRectF box = RectangleOf(picture.box);
    const QImage& image = materials.Decode(picture.image);
    if (!image.isNull())
    {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(box, image);
    }
    else if (!picture.placeholder.empty() && !box.isEmpty())
        PaintPlaceholder(painter, box, QString::fromStdWString(picture.placeholder.Wide()));
}

} // namespace

void PaintShape(QPainter& painter, CanvasShape& shape, PaintMaterials& materials)
{
    const ReferenceHost::ShapePicture& picture = shape.GetPicture();
    const Workbench::ShapeLook& look = shape.GetLook();
    if (picture.details.shadow)
        PaintShadow(painter, shape, *picture.details.shadow, materials);
    painter.save();
    painter.setTransform(shape.GetTransform(), true);
    const QRectF box = RectangleOf(picture.box);
    for (const CanvasShape::Part& part : shape.GetParts())
    {
        if (part.isFilled)
            PaintInside(painter, part.path, box, look.inside, picture.details, materials);
    }
    PaintContent(painter, picture, materials);
    for (const CanvasShape::Part& part : shape.GetParts())
    {
        const LineEnds ends = picture.isLine && part.mayHaveArrows ? LineEnds::Arrows : LineEnds::Plain;
        if (part.isStroked)
            PaintLine(painter, part.path, ends, look.line, picture.details, materials);
    }
    if (IsTextVisible(painter, look))
    {
        if (const ShapeText* const text = shape.GetText())
            text->Paint(painter);
    }
    painter.restore();
}

} // namespace Desktop
