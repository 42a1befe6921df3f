#pragma once

#include <QDoubleSpinBox>

namespace Desktop
{

/// A number with a unit that may also be none: then the field is empty but for a word that says why.
class UnsetSpinBox final : public QDoubleSpinBox
{
    Q_OBJECT

public:
    UnsetSpinBox(const QString& itsUnit, QWidget* parent);

    /// Shows a number, which widens the limits when it lies beyond them.
    void ShowNumber(double number);

    /// Shows no number; stepping starts from zero, or from the limit that is nearest to it.
    void ShowNone(const QString& placeholder);

    [[nodiscard]] bool IsNone() const noexcept { return isNone; }

    void stepBy(int steps) override;

signals:
    /// A person entered a number, by keys, wheel or arrows.
    void entered(double number);

protected:
    [[nodiscard]] QString textFromValue(double value) const override;
    [[nodiscard]] StepEnabled stepEnabled() const override;

private:
    void TakeText();
    void LeaveNone();

    QString unit;
    bool isNone = false;
    bool isTyped = false; ///< A person typed since the number was shown.
};

} // namespace Desktop
