#pragma once

#include "apps/desktop/rows/NumberScale.h"
#include "apps/desktop/rows/RowControl.h"

class QSlider;

namespace Desktop
{

class UnsetSpinBox;

/// A number with its unit; percentages have a slider beside it. Holding an arrow and moving the slider are
/// drags.
class NumberControl final : public RowControl
{
    Q_OBJECT

public:
    NumberControl(const Workbench::RowDescription& row, QWidget* parent);

    void ShowRow(const Workbench::RowReport& row) override;

    /// What dragging the row's label by so many pixels makes of the number that is shown, in words. The field
    /// shows it as well.
    QString DragFrom(double start, int pixels);

    /// Where such a drag starts.
    [[nodiscard]] double GetNumber() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeField(const Workbench::RowDescription& row);
    void MakeSlider();
    void TakeNumber(double number);
    [[nodiscard]] QString InWords(double number) const;

    NumberScale scale;
    UnsetSpinBox* field = nullptr; ///< Owned by this.
    QSlider* slider = nullptr;     ///< Owned by this; null but for percentages.
    bool isHeld = false;           ///< An arrow is held, or the slider.
};

} // namespace Desktop
