#include "apps/desktop/painting/PaintShape.h"

#include "apps/desktop/painting/PaintInside.h"
#include "apps/desktop/painting/PaintLine.h"
#include "apps/desktop/painting/ShapePaths.h"

#include <algorithm>
#include <cmath>

namespace Desktop
{
namespace
{

/// Text that is lower than this many pixels cannot be read and takes the most time of all.
constexpr double kLowestText = 2;

bool IsTextVisible(const QPainter& painter, const Workbench::ShapeLook& look)
{
    constexpr double kHundredthMmInATenthPoint = 2540.0 / 720.0;
    const double scale = std::sqrt(std::abs(painter.worldTransform().determinant()));
    return std::ranges::any_of(look.runs, [&](const Workbench::RunLook& run)
                               { return run.size * kHundredthMmInATenthPoint * scale >= kLowestText; });
}

} // namespace

void PaintShape(QPainter& painter, CanvasShape& shape, PaintMaterials& materials)
{
    const ReferenceHost::ShapePicture& picture = shape.GetPicture();
    const Workbench::ShapeLook& look = shape.GetLook();
    painter.save();
    painter.setTransform(shape.GetTransform(), true);
    const QRectF box = RectangleOf(picture.box);
    for (const CanvasShape::Part& part : shape.GetParts())
    {
        if (part.isFilled)
            PaintInside(painter, part.path, box, look.inside, picture.details, materials);
    }
    if (const QImage& image = materials.Decode(picture.image); !image.isNull())
    {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(box, image);
    }
    const LineEnds ends = picture.isLine ? LineEnds::Arrows : LineEnds::Plain;
    for (const CanvasShape::Part& part : shape.GetParts())
    {
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
