#pragma once

#include <QLabel>

namespace Desktop
{

/// The label of a row. That of a number can be dragged sideways to change it, and Escape takes that back.
class RowLabel final : public QLabel
{
    Q_OBJECT

public:
    RowLabel(const QString& text, QWidget* parent);

    /// Lets it be dragged.
    void SetDraggable();

signals:
    void dragBegan();
    void dragMoved(int pixels);
    void dragEnded(bool commit);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void End(bool commit);

    bool isDraggable = false;
    bool isDragging = false;
    int start = 0; ///< Where the drag began, on the screen.
};

} // namespace Desktop
