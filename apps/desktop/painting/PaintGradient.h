#pragma once

#include "reference_host/document/picture/Definitions.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace Desktop
{

/// Fills a path with a gradient that is fitted to `box`, in `steps` colours, or in as many as can be seen for
/// 0. May leave the painter clipped.
void PaintGradient(QPainter& painter, const QPainterPath& path, const QRectF& box,
                   const ReferenceHost::GradientDefinition& gradient, int steps);

} // namespace Desktop
