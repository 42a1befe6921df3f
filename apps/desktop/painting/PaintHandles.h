#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>

namespace Desktop
{

/// Paints a frame with eight handles around what is selected, in pixels.
void PaintHandles(QPainter& painter, const QRectF& around, const QPalette& palette);

/// Paints the rectangle that a person draws to select what is in it.
void PaintRubberBand(QPainter& painter, const QRectF& band, const QPalette& palette);

} // namespace Desktop
