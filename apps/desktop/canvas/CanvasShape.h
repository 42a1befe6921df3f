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

/// One shape on the canvas, with what painting it again and again needs. Borrows its picture.
class CanvasShape
{
public:
    /// A piece that is filled and stroked as one, in the shape's own coordinates.
    struct Part
    {
        QPainterPath path;
        bool isFilled = false;
        bool isStroked = false;
    };

    explicit CanvasShape(const ReferenceHost::ShapePicture& shapePicture);

    [[nodiscard]] const ReferenceHost::ShapePicture& GetPicture() const noexcept { return *picture; }

    [[nodiscard]] const QTransform& GetTransform() const noexcept { return toPage; }

    [[nodiscard]] const std::vector<Part>& GetParts() const noexcept { return parts; }

    /// What the outline takes up on the page.
    [[nodiscard]] const QRectF& GetBounds() const noexcept { return bounds; }

    /// The styles as they were when they were last read; reads them when they were forgotten.
    [[nodiscard]] const Workbench::ShapeLook& GetLook();

    /// The text set as the look says; null without text.
    [[nodiscard]] const ShapeText* GetText();

    /// Where something may be painted, on the page: outline, width of the line, arrows, and text by an
    /// estimate, so that text which is not seen need not be set.
    [[nodiscard]] const QRectF& GetPaintedBounds();

    /// Styles are read again when they are needed next. The text stays set where they turn out the same.
    void ForgetLook() { isLookKnown = false; }

    /// Tells whether a person who points there, give or take `tolerance`, means this shape: at its line, or
    /// inside where there is something to be seen.
    [[nodiscard]] bool IsAt(QPointF onPage, double tolerance);

private:
    [[nodiscard]] QRectF EstimateText() const;

    const ReferenceHost::ShapePicture* picture;
    QTransform toPage;
    std::vector<Part> parts;
    QRectF bounds;
    QRectF paintedBounds; ///< As the look says.
    Workbench::ShapeLook look;
    bool isLookKnown = false;
    std::unique_ptr<ShapeText> text; ///< Null until asked for, and without text.
};

} // namespace Desktop
