#include "apps/desktop/rows/NumberControl.h"

#include "apps/desktop/rows/UnsetSpinBox.h"
#include "apps/desktop/rows/WheelGuard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <utility>

namespace Desktop
{

NumberControl::NumberControl(const Workbench::RowDescription& row, QWidget* parent)
    : RowControl(parent), scale(ScaleOf(row))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    MakeField(row);
    if (row.kind == Workbench::ValueKind::Percent)
    {
        MakeSlider();
        layout->addWidget(slider, 1);
    }
    layout->addWidget(field, 1);
    setFocusProxy(field);
}

void NumberControl::ShowRow(const Workbench::RowReport& row)
{
    const auto* const value = std::get_if<int>(&row.value);
    if (value == nullptr)
        field->ShowNone(PlaceholderOf(row));
    else
        field->ShowNumber(*value / scale.valuesPerUnit);
    if (slider == nullptr)
        return;
    const QSignalBlocker blocker(slider);
    slider->setValue(value == nullptr ? slider->minimum() : *value);
}

QString NumberControl::DragFrom(double start, int pixels)
{
    field->ShowNumber(std::clamp(start + pixels * scale.step, field->minimum(), field->maximum()));
    return InWords(field->value());
}

double NumberControl::GetNumber() const
{
    return field->value();
}

/// An arrow that is held changes the number again and again: all that is one drag.
bool NumberControl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && !isHeld)
    {
        isHeld = true;
        emit dragBegan();
    }
    const bool isHandled = RowControl::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(isHeld, false))
        QMetaObject::invokeMethod(
            this, [this] { emit dragEnded(true); }, Qt::QueuedConnection);
    return isHandled;
}

void NumberControl::MakeField(const Workbench::RowDescription& row)
{
    field = new UnsetSpinBox(scale.unit, this);
    field->setDecimals(scale.decimals);
    field->setSingleStep(scale.step);
    if (row.range)
        field->setRange(row.range->minimum / scale.valuesPerUnit, row.range->maximum / scale.valuesPerUnit);
    field->installEventFilter(this);
    GuardWheel(*field);
    connect(field, &UnsetSpinBox::entered, this, &NumberControl::TakeNumber);
}

void NumberControl::MakeSlider()
{
    slider = new QSlider(Qt::Horizontal, this);
    slider->setRange(static_cast<int>(field->minimum()), static_cast<int>(field->maximum()));
    slider->setFocusPolicy(Qt::NoFocus);
    GuardWheel(*slider);
    connect(slider, &QSlider::sliderPressed, this,
            [this]
            {
                isHeld = true;
                emit dragBegan();
            });
    connect(slider, &QSlider::valueChanged, this,
            [this](int number)
            {
                field->ShowNumber(number);
                TakeNumber(number);
            });
    connect(slider, &QSlider::sliderReleased, this,
            [this]
            {
                isHeld = false;
                emit dragEnded(true);
            });
}

void NumberControl::TakeNumber(double number)
{
    if (isHeld)
        emit dragged(InWords(number));
    else
        emit committed(InWords(number));
}

QString NumberControl::InWords(double number) const
{
    return QString::number(number, 'f', scale.decimals) + scale.unit;
}

} // namespace Desktop
