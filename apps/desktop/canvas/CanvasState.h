#pragma once

#include "apps/desktop/canvas/CanvasBackground.h"
#include "apps/desktop/canvas/CanvasPage.h"
#include "apps/desktop/canvas/CanvasView.h"
#include "apps/desktop/canvas/CanvasWidget.h"
#include "apps/desktop/painting/PaintMaterials.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QBasicTimer>
#include <QPointF>
#include <QRectF>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Desktop
{

/// A drawing as it is shown.
struct ShownDrawing
{
    explicit ShownDrawing(ReferenceHost::DrawingPicture read)
        : picture(std::move(read)), materials(picture.definitions)
    {
    }

    ShownDrawing(const ShownDrawing&) = delete;
    ShownDrawing& operator=(const ShownDrawing&) = delete;

    ReferenceHost::DrawingPicture picture;
    PaintMaterials materials;
};

/// The insides of the canvas.
struct CanvasWidget::State
{
    std::unique_ptr<ShownDrawing> drawing; ///< Null without one.
    std::unique_ptr<CanvasPage> page;      ///< The page that is shown; null without a drawing or pages.
    int pageNumber = 0;
    CanvasView view;
    bool isWholePage = true; ///< The size follows that of the widget.
    CanvasBackground background;
    QBasicTimer rest;           ///< Runs while the background is stretched.
    ObjectSet selected;         ///< Groups may be among them.
    std::vector<QRectF> frames; ///< Around what is selected, on the page.

    /// The object that was selected last by itself; null without one. The next one by Tab is behind it.
    ReferenceHost::DrawingObject* current = nullptr;

    // What a person is doing
    std::optional<QPointF> moving;    ///< Where the pointer was that moves the page.
    std::optional<QPointF> bandStart; ///< Where the rubber band began.
    QRectF band;                      ///< Empty until the pointer went far enough.
    bool isAddingBand = false;        ///< What is in the band is added to what is selected.
    bool isSpaceHeld = false;
};

} // namespace Desktop
