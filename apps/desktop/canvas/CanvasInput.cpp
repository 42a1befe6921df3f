// What a person does with the canvas: selecting, moving and zooming.

#include "apps/desktop/canvas/CanvasState.h"
#include "apps/desktop/canvas/CanvasWidget.h"
#include "reference_host/document/DrawingObject.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Desktop
{
namespace
{

/// How far beside a line a person may point, in pixels.
constexpr double kTolerance = 4;

constexpr double kZoomStep = 1.25;

/// How far an arrow key moves the page, in pixels.
constexpr double kKeyStep = 40;

/// What one notch of most wheels counts, and how far it moves the page, in pixels.
constexpr double kNotch = 120;
constexpr double kNotchStep = 60;

} // namespace

void CanvasWidget::Choose(const std::vector<ReferenceHost::DrawingObject*>& objects)
{
    const ObjectSet chosen(objects.begin(), objects.end());
    if (chosen == state->selected)
        return;
    state->selected = chosen;
    update();
    emit selectionChanged(objects);
}

void CanvasWidget::ClickAt(QPointF place, bool isAdding)
{
    ReferenceHost::DrawingObject* const hit =
        state->page->FindAt(state->view.ToPage(place), kTolerance / state->view.GetScale());
    ObjectSet chosen;
    if (isAdding)
        chosen = state->selected;
    if (hit != nullptr && !chosen.insert(hit).second)
        chosen.erase(hit);
    std::vector<ReferenceHost::DrawingObject*> objects = state->page->GetObjects();
    std::erase_if(objects, [&](auto* object) { return !chosen.contains(object); });
    Choose(objects);
}

void CanvasWidget::mousePressEvent(QMouseEvent* event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    if (event->button() == Qt::MiddleButton || (isLeft && state->isSpaceHeld))
    {
        state->moving = event->position();
        return setCursor(Qt::ClosedHandCursor);
    }
    if (!isLeft || state->page == nullptr)
        return QWidget::mousePressEvent(event);
    const bool isAdding = event->modifiers().testFlag(Qt::ShiftModifier);
    const double tolerance = kTolerance / state->view.GetScale();
    if (state->page->FindAt(state->view.ToPage(event->position()), tolerance) != nullptr)
        return ClickAt(event->position(), isAdding);
    state->bandStart = event->position();
    state->isAddingBand = isAdding;
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (state->moving)
    {
        // Whole pixels let what is painted already be moved.
        const QPointF by = QPointF((event->position() - *state->moving).toPoint());
        *state->moving += by;
        return MoveBy(by);
    }
    if (!state->bandStart)
        return;
    const QRectF band = QRectF(*state->bandStart, event->position()).normalized();
    const bool isFarEnough =
        band.width() + band.height() >= static_cast<double>(QApplication::startDragDistance());
    if (isFarEnough || !state->band.isEmpty())
        state->band = band;
    update();
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (state->moving)
    {
        state->moving.reset();
        setCursor(state->isSpaceHeld ? Qt::OpenHandCursor : Qt::ArrowCursor);
    }
    else if (event->button() == Qt::LeftButton && state->bandStart)
        EndBand();
}

void CanvasWidget::EndBand()
{
    const QRectF band = state->view.ToPage(state->band);
    const bool isBand = !state->band.isEmpty();
    state->bandStart.reset();
    state->band = QRectF();
    update();
    ObjectSet chosen;
    if (isBand)
        chosen = state->page->FindWithin(band);
    if (state->isAddingBand)
        chosen.insert(state->selected.begin(), state->selected.end());
    std::vector<ReferenceHost::DrawingObject*> objects = state->page->GetObjects();
    std::erase_if(objects, [&](auto* object) { return !chosen.contains(object); });
    Choose(objects);
}

void CanvasWidget::wheelEvent(QWheelEvent* event)
{
    const QPointF notches = QPointF(event->angleDelta()) / kNotch;
    if (event->modifiers().testFlag(Qt::ControlModifier))
    {
        ZoomAt(event->position(), std::pow(kZoomStep, notches.y()));
        return event->accept();
    }
    const QPoint pixels = event->pixelDelta();
    QPointF by = pixels.isNull() ? QPointF((notches * kNotchStep).toPoint()) : QPointF(pixels);
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        by = by.transposed();
    MoveBy(by);
    event->accept();
}

void CanvasWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::SelectAll))
        return state->page == nullptr ? void() : Choose(state->page->GetObjects());
    switch (event->key())
    {
    case Qt::Key_Space:
        return SetSpace(true);
    case Qt::Key_Escape:
        return Choose({});
    case Qt::Key_Left:
        return MoveBy({kKeyStep, 0});
    case Qt::Key_Right:
        return MoveBy({-kKeyStep, 0});
    case Qt::Key_Up:
        return MoveBy({0, kKeyStep});
    case Qt::Key_Down:
        return MoveBy({0, -kKeyStep});
    case Qt::Key_PageUp:
        return SetPage(CurrentPage() - 1);
    case Qt::Key_PageDown:
        return SetPage(CurrentPage() + 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void CanvasWidget::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space)
        return QWidget::keyReleaseEvent(event);
    if (!event->isAutoRepeat())
        SetSpace(false);
}

void CanvasWidget::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    SetSpace(false);
}

void CanvasWidget::SetSpace(bool isHeld)
{
    if (state->isSpaceHeld == isHeld)
        return;
    state->isSpaceHeld = isHeld;
    if (!state->moving)
        setCursor(isHeld ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

} // namespace Desktop
