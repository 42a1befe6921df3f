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

/// Tells whether an object is in a group, however deep.
bool IsWithin(const ReferenceHost::DrawingObject* object, const ReferenceHost::DrawingObject* group)
{
    while (object != nullptr && object != group)
        object = object->GetGroup();
    return object != nullptr;
}

} // namespace

void CanvasWidget::Choose(const std::vector<ReferenceHost::DrawingObject*>& objects)
{
    const ObjectSet chosen(objects.begin(), objects.end());
    if (chosen == state->selected)
        return;
    state->selected = chosen;
    if (objects.size() == 1)
        state->current = objects.front();
    UpdateFrames();
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

void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    ReferenceHost::DrawingObject* outermost = nullptr;
    if (event->button() == Qt::LeftButton && state->page != nullptr && !state->isSpaceHeld)
        outermost =
            state->page->FindAt(state->view.ToPage(event->position()), kTolerance / state->view.GetScale());
    if (outermost == nullptr || outermost->GetGroup() == nullptr)
        return mousePressEvent(event);
    while (outermost->GetGroup() != nullptr)
        outermost = outermost->GetGroup();
    std::vector<ReferenceHost::DrawingObject*> objects = state->page->GetObjects();
    std::erase_if(objects, [&](auto* object) { return !IsWithin(object, outermost); });
    Choose(objects);
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
    if (ZoomByKey(*event) || LeaveByKey(*event))
        return;
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

bool CanvasWidget::ZoomByKey(const QKeyEvent& event)
{
    if (!event.modifiers().testFlag(Qt::ControlModifier))
        return false;
    // Plus needs Shift on some keyboards and shares its key with the equals sign on others.
    if (event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal)
        ZoomBy(kZoomStep);
    else if (event.key() == Qt::Key_Minus)
        ZoomBy(1 / kZoomStep);
    else if (event.key() == Qt::Key_0)
        ZoomToPage();
    else
        return false;
    return true;
}

bool CanvasWidget::LeaveByKey(const QKeyEvent& event)
{
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    if (!isTab || !event.modifiers().testFlag(Qt::ControlModifier))
        return false;
    QWidget::focusNextPrevChild(!event.modifiers().testFlag(Qt::ShiftModifier));
    return true;
}

bool CanvasWidget::focusNextPrevChild(bool isNext)
{
    ReferenceHost::DrawingObject* const next =
        state->page == nullptr ? nullptr : state->page->FindNext(state->current, !isNext);
    if (next == nullptr)
        return QWidget::focusNextPrevChild(isNext);
    Choose({next});
    if (!state->frames.empty())
        BringIntoView(state->frames.front());
    return true;
}

void CanvasWidget::BringIntoView(const QRectF& onPage)
{
    const QRectF inView = state->view.ToView(onPage);
    if (QRectF(rect()).contains(inView.center()))
        return;
    MoveBy((QRectF(rect()).center() - inView.center()).toPoint());
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
