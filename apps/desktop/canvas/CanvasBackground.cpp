#include "apps/desktop/canvas/CanvasBackground.h"

#include <QPainter>

#include <cmath>

namespace Desktop
{
namespace
{

/// The page without anything on it, and what is around.
void PaintSheet(QPainter& painter, const QRect& part, const CanvasPage* page, const CanvasView& view,
                const QPalette& palette)
{
    painter.fillRect(part, palette.color(QPalette::Mid));
    if (page == nullptr)
        return;
    const QRectF sheet = view.ToView(QRectF({}, page->GetSize()));
    painter.fillRect(sheet, Qt::white);
    painter.setPen(palette.color(QPalette::Dark));
    painter.drawRect(sheet);
}

} // namespace

void CanvasBackground::Forget()
{
    pixmap = QPixmap();
    stretched = QPixmap();
}

void CanvasBackground::Forget(const QRegion& part)
{
    if (!pixmap.isNull())
        missing += part & QRect(QPoint(), pixmap.deviceIndependentSize().toSize());
}

bool CanvasBackground::MoveBy(QPointF pixels)
{
    if (IsStretched())
    {
        stretch *= QTransform::fromTranslate(pixels.x(), pixels.y());
        return true;
    }
    const QPointF onScreen = pixels * pixmap.devicePixelRatio();
    const QPoint whole = onScreen.toPoint();
    if (pixmap.isNull() || pixels != QPointF(pixels.toPoint()) || onScreen != QPointF(whole))
    {
        Forget();
        return false;
    }
    const QRect all(QPoint(), pixmap.deviceIndependentSize().toSize());
    missing.translate(pixels.toPoint());
    missing += QRegion(all) - QRegion(all.translated(pixels.toPoint()));
    pixmap.scroll(whole.x(), whole.y(), pixmap.rect());
    return true;
}

void CanvasBackground::Stretch(QPointF fixed, double factor)
{
    if (!IsStretched())
    {
        stretched = pixmap;
        stretch = QTransform();
    }
    stretch *= QTransform(factor, 0, 0, factor, fixed.x() * (1 - factor), fixed.y() * (1 - factor));
}

const QPixmap& CanvasBackground::Update(QSize size, double ratio, CanvasPage* page, const CanvasView& view,
                                        const QPalette& palette)
{
    const QSize onScreen(static_cast<int>(std::ceil(size.width() * ratio)),
                         static_cast<int>(std::ceil(size.height() * ratio)));
    if (pixmap.size() != onScreen || pixmap.devicePixelRatio() != ratio)
    {
        pixmap = QPixmap(onScreen);
        pixmap.setDevicePixelRatio(ratio);
        missing = QRect(QPoint(), size);
    }
    if (IsStretched())
    {
        PaintStretched(page, view, palette);
        return pixmap;
    }
    for (const QRect& part : missing)
        Paint(part, page, view, palette);
    missing = {};
    return pixmap;
}

void CanvasBackground::Paint(const QRect& part, CanvasPage* page, const CanvasView& view,
                             const QPalette& palette)
{
    QPainter painter(&pixmap);
    painter.setClipRect(part);
    PaintSheet(painter, part, page, view, palette);
    if (page == nullptr)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(view.GetTransform(), true);
    page->Paint(painter, view.ToPage(QRectF(part).adjusted(-1, -1, 1, 1)));
}

void CanvasBackground::PaintStretched(const CanvasPage* page, const CanvasView& view, const QPalette& palette)
{
    QPainter painter(&pixmap);
    PaintSheet(painter, QRect(QPoint(), pixmap.deviceIndependentSize().toSize()), page, view, palette);
    if (page != nullptr)
        painter.setClipRect(view.ToView(QRectF({}, page->GetSize())));
    painter.setTransform(stretch, true);
    painter.drawPixmap(0, 0, stretched);
}

} // namespace Desktop
