#include "apps/desktop/painting/PaintVeiled.h"

#include "apps/desktop/painting/PaintGradient.h"

#include <QImage>
#include <QTransform>

namespace Desktop
{
namespace
{

/// An image of that size that `paint` has painted on, with the coordinates of the painter.
template <class Paint>
QImage Layer(QSize size, const QTransform& toLayer, const Paint& paint)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter layer(&image);
    layer.setRenderHint(QPainter::Antialiasing);
    layer.setTransform(toLayer);
    paint(layer);
    return image;
}

} // namespace

void PaintVeiled(QPainter& painter, const QPainterPath& path, const QRectF& box,
                 const ReferenceHost::GradientDefinition& opacity,
                 const std::function<void(QPainter& layer)>& paint)
{
    // Layers have a pixel for each of the screen, and no more than can be seen.
    const QTransform toScreen = painter.deviceTransform();
    QRectF seen = path.boundingRect();
    if (painter.hasClipping())
        seen &= painter.clipBoundingRect();
    const QRect pixels = toScreen.mapRect(seen).toAlignedRect();
    if (seen.isEmpty() || pixels.isEmpty())
        return;
    const QTransform toLayer = toScreen * QTransform::fromTranslate(-pixels.left(), -pixels.top());
    QImage painted = Layer(pixels.size(), toLayer, paint);
    const QImage greys =
        Layer(pixels.size(), toLayer, [&](QPainter& layer) { PaintGradient(layer, path, box, opacity, 0); });
    QImage veil = greys.convertToFormat(QImage::Format_Grayscale8);
    veil.reinterpretAsFormat(QImage::Format_Alpha8);
    {
        QPainter veiling(&painted);
        veiling.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        veiling.drawImage(0, 0, veil);
    }
    const double ratio = painter.device()->devicePixelRatioF();
    painted.setDevicePixelRatio(ratio);
    painter.save();
    painter.resetTransform();
    painter.drawImage(QPointF(pixels.topLeft()) / ratio, painted);
    painter.restore();
}

} // namespace Desktop
