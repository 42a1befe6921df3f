#pragma once

#include "apps/desktop/painting/PaintMaterials.h"
#include "apps/workbench/ShapeLooks.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QPainter>
#include <QPainterPath>

namespace Desktop
{

/// Whether a line may end in arrows.
enum class LineEnds
{
    Plain,
    Arrows
};

/// Draws the line along a path, in the painter's coordinates, never thinner than a pixel.
void PaintLine(QPainter& painter, const QPainterPath& path, LineEnds ends, const Workbench::LineLook& look,
               const ReferenceHost::ShapeDetails& details, const PaintMaterials& materials);

} // namespace Desktop
