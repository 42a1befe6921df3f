#pragma once

#include "apps/desktop/canvas/CanvasShape.h"
#include "apps/desktop/painting/PaintMaterials.h"

#include <QPainter>

namespace Desktop
{

/// Paints one shape with everything that belongs to it; the painter's coordinates are those of the page.
void PaintShape(QPainter& painter, CanvasShape& shape, PaintMaterials& materials);

} // namespace Desktop
