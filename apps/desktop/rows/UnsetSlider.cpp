#include "apps/desktop/rows/UnsetSlider.h"

#include <QSignalBlocker>
#include <QStyleOptionSlider>
#include <QStylePainter>

namespace Desktop
{

UnsetSlider::UnsetSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent)
{
    connect(this, &QSlider::sliderPressed, this, [this] { isNone = false; });
    connect(this, &QSlider::valueChanged, this, [this] { isNone = false; });
}

void UnsetSlider::ShowNumber(int number)
{
    const QSignalBlocker blocker(this);
    isNone = false;
    setValue(number);
    update();
}

void UnsetSlider::ShowNone()
{
    const QSignalBlocker blocker(this);
    setValue(0);
    isNone = true;
    update();
}

void UnsetSlider::paintEvent(QPaintEvent* event)
{
    if (!isNone)
        return QSlider::paintEvent(event);
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove;
    QStylePainter(this).drawComplexControl(QStyle::CC_Slider, option);
}

} // namespace Desktop
