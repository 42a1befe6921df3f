#pragma once

#include "apps/desktop/painting/PaintMaterials.h"
#include "apps/workbench/ShapeLooks.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

namespace Desktop
{

/// Fills what a path encloses. `box` is that of the whole shape, to which gradients and bitmaps are fitted;
/// all in the painter's coordinates.
///
/// What names something that the drawing does not define is filled with the plain colour.
void PaintInside(QPainter& painter, const QPainterPath& path, const QRectF& box,
                 const Workbench::InsideLook& look, const ReferenceHost::ShapeDetails& details,
                 PaintMaterials& materials);

} // namespace Desktop
