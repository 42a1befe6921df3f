#include "apps/desktop/CanvasWidget.h"

#include "apps/workbench/Session.h"
#include "reference_host/document/Drawing.h"

#include <QPainter>

#include <algorithm>

namespace Desktop
{
namespace
{

constexpr double kPageAspect = 297.0 / 210.0;
constexpr double kMargin = 24.0;

} // namespace

struct CanvasWidget::View
{
    Workbench::Session* session = nullptr; ///< Borrowed; null without a drawing.
    int page = 0;
    double zoom = 1.0;
};

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent), view(std::make_unique<View>())
{
    setMinimumSize(240, 180);
    setFocusPolicy(Qt::StrongFocus);
}

CanvasWidget::~CanvasWidget() = default;

void CanvasWidget::ShowDrawing(Workbench::Session* session)
{
    *view = {session, 0, 1.0};
    update();
}

void CanvasWidget::SetSelectedObjects(const std::vector<ReferenceHost::DrawingObject*>&)
{
    update();
}

void CanvasWidget::RefreshStyles()
{
    update();
}

int CanvasWidget::PageCount() const
{
    return view->session == nullptr ? 0 : static_cast<int>(view->session->GetDrawing().GetPages().size());
}

int CanvasWidget::CurrentPage() const
{
    return view->page;
}

void CanvasWidget::SetPage(int page)
{
    if (page < 0 || page >= PageCount())
        return;
    view->page = page;
    update();
}

void CanvasWidget::ZoomBy(double factor)
{
    view->zoom = std::clamp(view->zoom * factor, 0.05, 40.0);
    update();
}

void CanvasWidget::ZoomToPage()
{
    view->zoom = 1.0;
    update();
}

void CanvasWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().mid());
    if (PageCount() == 0)
        return;
    const double height = std::min(this->height() - 2 * kMargin, (width() - 2 * kMargin) / kPageAspect);
    const QSizeF size(height * kPageAspect * view->zoom, height * view->zoom);
    const QRectF page(QPointF((width() - size.width()) / 2, (this->height() - size.height()) / 2), size);
    painter.fillRect(page, Qt::white);
    painter.drawRect(page);
}

} // namespace Desktop
