#include "apps/desktop/rows/WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace Desktop
{
namespace
{

class WheelGuard final : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }
};

} // namespace

void GuardWheel(QWidget& control)
{
    control.installEventFilter(new WheelGuard(&control));
}

} // namespace Desktop
