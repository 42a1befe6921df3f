#pragma once

#include "apps/desktop/painting/PaintMaterials.h"
#include "apps/workbench/ShapeLooks.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QPainterPath>

namespace Desktop
{

/// A line that makes room for its arrows.
struct ArrowedLine
{
    QPainterPath line;   ///< Shorter than it was by what the arrows cover.
    QPainterPath arrows; ///< To be filled; empty without any.
};

/// Puts the arrows that a look names at the ends of a path that is open.
[[nodiscard]] ArrowedLine AddArrows(const QPainterPath& path, const Workbench::LineLook& look,
                                    const ReferenceHost::ShapeDetails& details,
                                    const PaintMaterials& materials);

} // namespace Desktop
