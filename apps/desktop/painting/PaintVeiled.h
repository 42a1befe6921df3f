#pragma once

#include "reference_host/document/picture/Definitions.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

#include <functional>

namespace Desktop
{

/// Paints what `paint` paints within a path, as opaque from place to place as `opacity` says, which is fitted
/// to `box`. The painter handed to `paint` has the same coordinates.
void PaintVeiled(QPainter& painter, const QPainterPath& path, const QRectF& box,
                 const ReferenceHost::GradientDefinition& opacity,
                 const std::function<void(QPainter& layer)>& paint);

} // namespace Desktop
