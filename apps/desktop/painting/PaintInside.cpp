// Plain colours and bitmaps; gradients and hatches have files of their own.

#include "apps/desktop/painting/PaintInside.h"

#include "apps/desktop/painting/PaintGradient.h"
#include "apps/desktop/painting/PaintHatch.h"
#include "apps/desktop/painting/PaintVeiled.h"

#include <QBrush>

#include <algorithm>

namespace Desktop
{
namespace
{

/// What a pixel of a bitmap measures where nothing says how large it is: 96 to an inch.
constexpr double kHundredthMmInAPixel = 2540.0 / 96.0;

QSizeF SizeOf(const QImage& bitmap, const ReferenceHost::ShapeDetails& details)
{
    QSizeF size = QSizeF(bitmap.size()) * kHundredthMmInAPixel;
    if (details.bitmapSize.x > 0)
        size.setWidth(details.bitmapSize.x);
    if (details.bitmapSize.y > 0)
        size.setHeight(details.bitmapSize.y);
    return size;
}

void PaintBitmap(QPainter& painter, const QPainterPath& path, const QRectF& box, const QImage& bitmap,
                 const ReferenceHost::ShapeDetails& details)
{
    using Fit = ReferenceHost::ShapeDetails::BitmapFit;
    painter.setClipPath(path, Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (details.bitmapFit == Fit::Stretch)
        return painter.drawImage(box, bitmap);
    const QSizeF size = SizeOf(bitmap, details);
    const QRectF tile(QPointF(box.left() + details.bitmapAnchor.x * (box.width() - size.width()),
                              box.top() + details.bitmapAnchor.y * (box.height() - size.height())),
                      size);
    if (details.bitmapFit == Fit::Once)
        return painter.drawImage(tile, bitmap);
    QBrush brush(bitmap);
    brush.setTransform(
        QTransform::fromTranslate(tile.left(), tile.top())
            .scale(tile.width() / std::max(1, bitmap.width()), tile.height() / std::max(1, bitmap.height())));
    painter.fillPath(path, brush);
}

/// Fills a path without regard to what makes it see-through from place to place.
void PaintOpaque(QPainter& painter, const QPainterPath& path, const QRectF& box,
                 const Workbench::InsideLook& look, const ReferenceHost::ShapeDetails& details,
                 PaintMaterials& materials)
{
    using Kind = Workbench::InsideLook::Kind;
    const auto* const gradient =
        look.kind == Kind::Gradient ? materials.FindGradient(look.definition) : nullptr;
    const auto* const hatch = look.kind == Kind::Hatch ? materials.FindHatch(look.definition) : nullptr;
    const QImage bitmap = look.kind == Kind::Bitmap ? materials.FindBitmap(look.definition) : QImage();
    const bool isPlain = gradient == nullptr && hatch == nullptr && bitmap.isNull();
    if (isPlain || (hatch != nullptr && details.isFillingHatches))
        painter.fillPath(path, ColourOf(look.colour, look.transparency));
    if (isPlain)
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * (100 - std::clamp(look.transparency, 0, 100)) / 100.0);
    if (gradient != nullptr)
        PaintGradient(painter, path, box, *gradient, details.gradientSteps);
    else if (hatch != nullptr)
        PaintHatch(painter, path, box, *hatch);
    else
        PaintBitmap(painter, path, box, bitmap, details);
    painter.restore();
}

} // namespace

void PaintInside(QPainter& painter, const QPainterPath& path, const QRectF& box,
                 const Workbench::InsideLook& look, const ReferenceHost::ShapeDetails& details,
                 PaintMaterials& materials)
{
    if (look.kind == Workbench::InsideLook::Kind::None)
        return;
    const auto* const opacity = materials.FindOpacity(details.opacity);
    if (opacity == nullptr)
        return PaintOpaque(painter, path, box, look, details, materials);
    PaintVeiled(painter, path, box, *opacity,
                [&](QPainter& layer) { PaintOpaque(layer, path, box, look, details, materials); });
}

} // namespace Desktop
