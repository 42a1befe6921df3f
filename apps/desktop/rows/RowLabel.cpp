#include "apps/desktop/rows/RowLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace Desktop
{

RowLabel::RowLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
}

void RowLabel::SetDraggable()
{
    isDraggable = true;
    setCursor(Qt::SizeHorCursor);
}

void RowLabel::mousePressEvent(QMouseEvent* event)
{
    if (!isDraggable || event->button() != Qt::LeftButton)
    {
        QLabel::mousePressEvent(event);
        return;
    }
    isDragging = true;
    start = event->globalPosition().toPoint().x();
    grabKeyboard();
    emit dragBegan();
}

void RowLabel::mouseMoveEvent(QMouseEvent* event)
{
    if (isDragging)
        emit dragMoved(event->globalPosition().toPoint().x() - start);
}

void RowLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        End(true);
}

void RowLabel::keyPressEvent(QKeyEvent* event)
{
    if (isDragging && event->key() == Qt::Key_Escape)
        End(false);
    else
        QLabel::keyPressEvent(event);
}

void RowLabel::End(bool commit)
{
    if (!std::exchange(isDragging, false))
        return;
    releaseKeyboard();
    emit dragEnded(commit);
}

} // namespace Desktop
