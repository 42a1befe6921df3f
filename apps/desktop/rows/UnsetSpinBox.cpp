#include "apps/desktop/rows/UnsetSpinBox.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace Desktop
{

UnsetSpinBox::UnsetSpinBox(const QString& itsUnit, QWidget* parent)
    : QDoubleSpinBox(parent), unit(QLatin1Char(' ') + itsUnit)
{
    setKeyboardTracking(false);
    setSuffix(unit);
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this]
            {
                isTyped = true;
                isNone = false;
            });
    connect(this, &QDoubleSpinBox::editingFinished, this, &UnsetSpinBox::TakeText);
}

void UnsetSpinBox::ShowNumber(double number)
{
    const QSignalBlocker blocker(this);
    isTyped = false;
    LeaveNone();
    setRange(std::min(minimum(), number), std::max(maximum(), number));
    setValue(number);
    setAccessibleDescription(QString());
    // The value may be what it was before there was none; the text is not.
    lineEdit()->setText(textFromValue(value()) + unit);
}

void UnsetSpinBox::ShowNone(const QString& placeholder)
{
    const QSignalBlocker blocker(this);
    isTyped = false;
    isNone = true;
    lineEdit()->setPlaceholderText(placeholder);
    // Who hears what the field holds would hear nothing.
    setAccessibleDescription(placeholder);
    setSuffix(QString());
    setValue(0);
    lineEdit()->clear();
}

void UnsetSpinBox::stepBy(int steps)
{
    {
        const QSignalBlocker blocker(this);
        LeaveNone();
        QDoubleSpinBox::stepBy(steps);
    }
    isTyped = false;
    emit entered(value());
}

QString UnsetSpinBox::textFromValue(double value) const
{
    return isNone ? QString() : QDoubleSpinBox::textFromValue(value);
}

QAbstractSpinBox::StepEnabled UnsetSpinBox::stepEnabled() const
{
    return isNone ? StepEnabled(StepUpEnabled | StepDownEnabled) : QDoubleSpinBox::stepEnabled();
}

void UnsetSpinBox::TakeText()
{
    if (!std::exchange(isTyped, false))
        return;
    {
        const QSignalBlocker blocker(this);
        setSuffix(unit);
    }
    emit entered(value());
}

void UnsetSpinBox::LeaveNone()
{
    isNone = false;
    setSuffix(unit);
}

} // namespace Desktop
