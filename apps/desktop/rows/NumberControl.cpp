#include "apps/desktop/rows/NumberControl.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/rows/UnsetSlider.h"
#include "apps/desktop/rows/UnsetSpinBox.h"
#include "apps/desktop/rows/WheelGuard.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace Desktop
{
namespace
{

/// Longer than it takes a key that is held to repeat: some platforms tell that as letting go and pressing
/// anew.
constexpr int kPauseInMilliseconds = 100;

bool IsStepKey(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

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
    pause.setSingleShot(true);
    pause.setInterval(kPauseInMilliseconds);
    connect(&pause, &QTimer::timeout, this, &NumberControl::EndPause);
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
    if (value == nullptr)
        slider->ShowNone();
    else
        slider->ShowNumber(*value);
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
    switch (event->type())
    {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            HoldByPointer(static_cast<QWidget*>(watched));
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::FocusOut:
        LetGoLater();
        break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (FilterKey(*static_cast<QKeyEvent*>(event)))
            return true;
        break;
    default:
        break;
    }
    return RowControl::eventFilter(watched, event);
}

/// @returns whether the key was meant for the drag alone.
bool NumberControl::FilterKey(const QKeyEvent& key)
{
    if (key.type() == QEvent::KeyRelease)
    {
        if (IsStepKey(key.key()) && !key.isAutoRepeat())
            pause.start();
        return false;
    }
    if (IsStepKey(key.key()))
        return key.type() == QEvent::KeyPress && FilterStep(key.isAutoRepeat());
    const bool isEscape = key.key() == Qt::Key_Escape;
    if (isHeld && isEscape && key.type() == QEvent::KeyPress)
        return GiveUp(), true;
    // What another key does finds the drag done.
    if (!isEscape && underPointer == nullptr)
        EndPause();
    return false;
}

/// @returns whether the step is not to be made: a key may be held for longer than its drag.
bool NumberControl::FilterStep(bool isRepeat)
{
    if (isGivenUp && pause.isActive())
        return pause.start(), true;
    if (isRepeat && !isHeld)
        return true;
    pause.stop();
    Hold();
    return false;
}

void NumberControl::EndPause()
{
    pause.stop();
    LetGo(!isGivenUp);
    isGivenUp = false;
}

void NumberControl::Hold()
{
    isGivenUp = false;
    if (!std::exchange(isHeld, true))
        emit dragBegan();
}

void NumberControl::HoldByPointer(QWidget* held)
{
    underPointer = held;
    // The slider takes no focus, and would not hear of Escape.
    if (held == slider)
        held->grabKeyboard();
    Hold();
}

void NumberControl::LetGo(bool commit)
{
    if (slider != nullptr && QWidget::keyboardGrabber() == slider)
        slider->releaseKeyboard();
    underPointer = nullptr;
    if (std::exchange(isHeld, false))
        emit dragEnded(commit);
}

/// What is watched handles its events after the filter, and may change the number once more.
void NumberControl::LetGoLater()
{
    QMetaObject::invokeMethod(this, &NumberControl::EndPause, Qt::QueuedConnection);
}

/// What is held is told that it was let go, and goes on no more.
void NumberControl::GiveUp()
{
    isGivenUp = true;
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), QPointF(), Qt::LeftButton, {}, {});
    if (underPointer != nullptr)
        QCoreApplication::sendEvent(underPointer, &release);
    QKeyEvent keyRelease(QEvent::KeyRelease, Qt::Key_Up, {});
    QCoreApplication::sendEvent(field, &keyRelease);
    LetGo(false);
}

void NumberControl::MakeField(const Workbench::RowDescription& row)
{
    field = new UnsetSpinBox(scale.unit, this);
    field->setDecimals(scale.decimals);
    field->setSingleStep(scale.step);
    if (row.range)
        field->setRange(row.range->minimum / scale.valuesPerUnit, row.range->maximum / scale.valuesPerUnit);
    FitWords();
    field->installEventFilter(this);
    GuardWheel(*field);
    connect(field, &UnsetSpinBox::entered, this, &NumberControl::TakeNumber);
}

/// The field has room for what stands in it instead of a number.
void NumberControl::FitWords()
{
    constexpr int kArrowsAndFrame = 32;
    const QFontMetrics metrics(field->font());
    const int width = std::max(metrics.horizontalAdvance(TextOf(L"value.ambiguous")),
                               metrics.horizontalAdvance(TextOf(L"value.unset")));
    field->setMinimumWidth(width + kArrowsAndFrame);
}

void NumberControl::MakeSlider()
{
    slider = new UnsetSlider(this);
    slider->setRange(static_cast<int>(field->minimum()), static_cast<int>(field->maximum()));
    slider->setFocusPolicy(Qt::NoFocus);
    slider->setMinimumWidth(48);
    slider->installEventFilter(this);
    GuardWheel(*slider);
    connect(slider, &QSlider::sliderPressed, this, &NumberControl::Hold);
    connect(slider, &QSlider::valueChanged, this,
            [this](int number)
            {
                field->ShowNumber(number);
                TakeNumber(number);
            });
    connect(slider, &QSlider::sliderReleased, this, [this] { LetGo(!isGivenUp); });
}

void NumberControl::TakeNumber(double number)
{
    if (isGivenUp)
        return;
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
