#pragma once

#include <QSlider>

namespace Desktop
{

/// A slider that may also stand nowhere: then it has no handle until a person moves it.
class UnsetSlider final : public QSlider
{
    Q_OBJECT

public:
    explicit UnsetSlider(QWidget* parent);

    /// Shows a number. Nothing is told.
    void ShowNumber(int number);

    /// Shows no handle; moving starts from zero, or from the limit that is nearest to it. Nothing is told.
    void ShowNone();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool isNone = false;
};

} // namespace Desktop
