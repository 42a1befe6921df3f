// What the canvas shows. What a person does with it is in CanvasInput.cpp.

#include "apps/desktop/canvas/CanvasWidget.h"

#include "apps/desktop/canvas/CanvasAccess.h"
#include "apps/desktop/canvas/CanvasState.h"
#include "apps/desktop/painting/PaintHandles.h"
#include "reference_host/document/DrawingObject.h"

#include <QEvent>
#include <QPainter>
#include <QRegion>
#include <QStringList>
#include <QTimerEvent>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Desktop
{
namespace
{

/// With more objects than this, one frame stands for all handles: nobody could tell them apart.
constexpr std::size_t kMostHandles = 500;

/// Tells whether an object or one of its groups is selected.
bool IsSelected(ReferenceHost::DrawingObject* object, const ObjectSet& selected)
{
    for (; object != nullptr; object = object->GetGroup())
    {
        if (selected.contains(object))
            return true;
    }
    return false;
}

} // namespace

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent), state(std::make_unique<State>())
{
    setMinimumSize(240, 180);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    InstallCanvasAccess();
}

CanvasWidget::~CanvasWidget() = default;

void CanvasWidget::ShowNothing()
{
    state = std::make_unique<State>();
    update();
}

void CanvasWidget::ShowPicture(ReferenceHost::DrawingPicture picture)
{
    ShowNothing();
    state->drawing = std::make_unique<ShownDrawing>(std::move(picture));
    SetPage(0);
    ZoomToPage();
}

void CanvasWidget::SetSelectedObjects(const std::vector<ReferenceHost::DrawingObject*>& objects)
{
    state->selected = ObjectSet(objects.begin(), objects.end());
    state->current = objects.size() == 1 ? objects.front() : nullptr;
    UpdateFrames();
}

void CanvasWidget::UpdateFrames()
{
    state->frames.clear();
    if (state->page != nullptr)
        state->frames = state->page->BoundsOf(state->selected);
    if (state->frames.size() > kMostHandles)
    {
        QRectF all;
        for (const QRectF& each : state->frames)
            all |= each;
        state->frames = {all};
    }
    update();
    TellSelection(*this);
}

void CanvasWidget::RefreshStyles()
{
    if (state->page == nullptr)
        return;
    // Beyond that one rectangle is quicker than many.
    constexpr std::size_t kMostParts = 64;
    const std::vector<QRectF> changed = state->page->RefreshLooks();
    QRegion parts;
    QRectF all;
    for (const QRectF& each : changed)
    {
        const QRectF inView = state->view.ToView(each).adjusted(-2, -2, 2, 2);
        all |= inView;
        if (changed.size() <= kMostParts)
            parts += inView.toAlignedRect();
    }
    if (changed.size() > kMostParts)
        parts = (all & QRectF(rect())).toAlignedRect();
    state->background.Forget(parts);
    update();
}

QString CanvasWidget::DescribeSelection() const
{
    constexpr int kMostNames = 20;
    QStringList names;
    if (state->page == nullptr)
        return {};
    for (ReferenceHost::DrawingObject* const object : state->page->GetObjects())
    {
        if (!IsSelected(object, state->selected))
            continue;
        if (names.size() == kMostNames)
        {
            names << QString(QChar(0x2026));
            break;
        }
        const QString name = QString::fromStdWString(object->GetName().Wide());
        names << (name.isEmpty() ? QString::fromStdWString(std::wstring(object->GetKind())) +
                                       QLatin1Char(' ') + QString::fromStdWString(object->GetId().Wide())
                                 : name);
    }
    return names.join(QLatin1String(", "));
}

int CanvasWidget::PageCount() const
{
    return state->drawing == nullptr ? 0 : static_cast<int>(state->drawing->picture.pages.size());
}

int CanvasWidget::CurrentPage() const
{
    return state->pageNumber;
}

void CanvasWidget::SetPage(int page)
{
    if (page < 0 || page >= PageCount())
        return;
    ShownDrawing& drawing = *state->drawing;
    state->page = std::make_unique<CanvasPage>(drawing.picture.pages[static_cast<std::size_t>(page)],
                                               drawing.materials);
    state->pageNumber = page;
    if (state->isWholePage)
        state->view.Fit(state->page->GetSize(), size());
    Repaint();
    UpdateFrames();
    emit pageChanged();
}

void CanvasWidget::ZoomBy(double factor)
{
    ZoomAt(QRectF(rect()).center(), factor);
}

void CanvasWidget::ZoomToPage()
{
    state->isWholePage = true;
    if (state->page != nullptr)
        state->view.Fit(state->page->GetSize(), size());
    Repaint();
}

QPointF CanvasWidget::ToWidget(QPointF onPage) const
{
    return state->view.ToView(QRectF(onPage, QSizeF())).topLeft();
}

void CanvasWidget::Repaint()
{
    state->rest.stop();
    state->background.Forget();
    update();
}

void CanvasWidget::MoveBy(QPointF pixels)
{
    state->isWholePage = false;
    state->view.MoveBy(pixels);
    state->background.MoveBy(pixels);
    update();
}

void CanvasWidget::ZoomAt(QPointF fixed, double factor)
{
    state->isWholePage = false;
    const double before = state->view.GetScale();
    state->view.ZoomAt(fixed, factor);
    // A wheel turns faster than many objects are painted: those wait until it rests.
    constexpr std::size_t kFewShapes = 500;
    constexpr int kRestInMs = 120;
    if (state->page == nullptr || state->page->CountShapes() <= kFewShapes)
        return Repaint();
    state->background.Stretch(fixed, state->view.GetScale() / before);
    state->rest.start(kRestInMs, this);
    update();
}

void CanvasWidget::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != state->rest.timerId())
        return QWidget::timerEvent(event);
    Repaint();
}

void CanvasWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(
        0, 0,
        state->background.Update(size(), devicePixelRatioF(), state->page.get(), state->view, palette()));
    if (state->page == nullptr)
        return;
    for (const QRectF& each : state->frames)
        PaintHandles(painter, state->view.ToView(each), palette());
    if (!state->band.isEmpty())
        PaintRubberBand(painter, state->band, palette());
}

void CanvasWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (state->isWholePage && state->page != nullptr)
        state->view.Fit(state->page->GetSize(), size());
    Repaint();
}

void CanvasWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        Repaint();
}

} // namespace Desktop
