#pragma once

#include "reference_host/document/picture/Geometry.h"

#include <QPainterPath>
#include <QRectF>
#include <QTransform>

namespace Desktop
{

/// What the drawing tells about geometry, in Qt's terms.
[[nodiscard]] QPainterPath PathOf(const ReferenceHost::Contour& contour);
[[nodiscard]] QTransform TransformOf(const ReferenceHost::Transform& transform);
[[nodiscard]] QRectF RectangleOf(const ReferenceHost::Box& box);

} // namespace Desktop
