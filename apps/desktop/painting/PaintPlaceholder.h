#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace Desktop
{

/// Paints a frame with a name in place of what cannot be shown.
void PaintPlaceholder(QPainter& painter, const QRectF& box, const QString& name);

} // namespace Desktop
