#pragma once

#include "apps/desktop/painting/ShapeText.h"
#include "apps/workbench/ShapeLooks.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <memory>
#include <optional>
#include <vector>

namespace Desktop
{

/// One shape on the canvas, with what painting it again and again needs. Borrows its picture and its reader.
class CanvasShape
{
public:
    /// A piece that is filled and stroked as one, in the shape's own coordinates.
    struct Part
    {
        QPainterPath path;
        bool isFilled = false;
        bool isStroked = false;
        bool mayHaveArrows = true;
    };

    CanvasShape(const ReferenceHost::ShapePicture& shapePicture, Workbench::LookReader& lookReader);

    [[nodiscard]] const ReferenceHost::ShapePicture& GetPicture() const noexcept { return *picture; }

    [[nodiscard]] const QTransform& GetTransform() const noexcept { return toPage; }

    [[nodiscard]] const std::vector<Part>& GetParts() const noexcept { return parts; }

    /// What the outline takes up on the page.
    [[nodiscard]] const QRectF& GetBounds() const noexcept { return bounds; }

    /// The styles as they were when they were last read; reads them when they were forgotten.
    [[nodiscard]] const Workbench::ShapeLook& GetLook();

    /// The text set as the look says; null without text.
    [[nodiscard]] const ShapeText* GetText();

    /// Where something may be painted, on the page: outline, width of the line, arrows, shadow, and text, by
    /// an estimate until it is set, so that text which is not seen need not be.
    [[nodiscard]] const QRectF& GetPaintedBounds();

    /// Reads the styles again if they were read before, and tells whether they are different now. The text
    /// stays set where it looks the same.
    [[nodiscard]] bool RefreshLook();

    /// Tells whether a person who points there, give or take `tolerance`, means this shape: at its line, or
    /// inside where there is something to be seen.
    [[nodiscard]] bool IsAt(QPointF onPage, double tolerance);

private:
    void TakeLook(Workbench::ShapeLook now);
    [[nodiscard]] QRectF PaintedOutline() const;
    [[nodiscard]] QRectF EstimateText() const;

    const ReferenceHost::ShapePicture* picture;
    Workbench::LookReader* reader;
    QTransform toPage;
    std::vector<Part> parts;
    QRectF bounds;
    QRectF paintedBounds; ///< As the look says.
    Workbench::ShapeLook look;
    bool isLookKnown = false;
    std::unique_ptr<ShapeText> text; ///< Null until asked for, and without text.
};

} // namespace Desktop
