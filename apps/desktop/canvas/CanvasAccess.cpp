#include "apps/desktop/canvas/CanvasAccess.h"

#include "apps/desktop/canvas/CanvasWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <memory>

namespace Desktop
{
namespace
{

/// A canvas as screen readers see it: what is selected is its value.
class CanvasAccess : public QAccessibleWidget
{
public:
    explicit CanvasAccess(CanvasWidget& shown)
        : QAccessibleWidget(&shown, QAccessible::Canvas), canvas(&shown)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? canvas->DescribeSelection() : QAccessibleWidget::text(kind);
    }

private:
    CanvasWidget* canvas; ///< Outlives this.
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object)
{
    auto* const canvas = qobject_cast<CanvasWidget*>(object);
    // The caller owns what it gets.
    return canvas == nullptr ? nullptr : std::make_unique<CanvasAccess>(*canvas).release();
}

} // namespace

void InstallCanvasAccess()
{
    // One that is installed already is not installed again.
    QAccessible::installFactory(&Make);
}

void TellSelection(CanvasWidget& canvas)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(&canvas, canvas.DescribeSelection());
    QAccessible::updateAccessibility(&event);
}

} // namespace Desktop
