#pragma once

#include "apps/desktop/rows/NumberScale.h"
#include "apps/desktop/rows/RowControl.h"

#include <QTimer>

class QKeyEvent;

namespace Desktop
{

class UnsetSlider;
class UnsetSpinBox;

/// A number with its unit; percentages have a slider beside it. Holding an arrow, of the field or of the
/// keyboard, and moving the slider are drags, which Escape takes back.
class NumberControl final : public RowControl
{
    Q_OBJECT

public:
    NumberControl(const Workbench::RowDescription& row, QWidget* parent);

    void ShowRow(const Workbench::RowReport& row) override;

    /// What dragging the row's label by so many pixels makes of the number that is shown, in words. The field
    /// shows it as well.
    QString DragFrom(double start, int pixels);

    /// Where such a drag starts: the number that is shown; without one zero, or the limit that is nearest to
    /// it.
    [[nodiscard]] double GetNumber() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeField(const Workbench::RowDescription& row);
    void FitWords();
    void MakeSlider();
    bool FilterKey(const QKeyEvent& key);
    bool FilterStep(bool isRepeat);
    void EndPause();
    void Hold();
    void HoldByPointer(QWidget* held);
    void LetGo(bool commit);
    void LetGoLater();
    void GiveUp();
    void TakeNumber(double number);
    [[nodiscard]] QString InWords(double number) const;

    NumberScale scale;
    UnsetSpinBox* field = nullptr;   ///< Owned by this.
    UnsetSlider* slider = nullptr;   ///< Owned by this; null but for percentages.
    QWidget* underPointer = nullptr; ///< What the pointer holds; null while nothing is.
    bool isHeld = false;             ///< An arrow is held, or the slider: a drag goes on.
    bool isGivenUp = false;          ///< The drag was taken back while it was held.
    QTimer pause{this}; ///< Runs since a key was let go: pressed again within that, it is still held.
};

} // namespace Desktop
