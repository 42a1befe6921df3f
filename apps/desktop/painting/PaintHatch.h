#pragma once

#include "reference_host/document/picture/Definitions.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace Desktop
{

/// Fills a path with the lines of a hatch, as thin as can be seen. Leaves the painter clipped.
void PaintHatch(QPainter& painter, const QPainterPath& path, const QRectF& box,
                const ReferenceHost::HatchDefinition& hatch);

} // namespace Desktop
