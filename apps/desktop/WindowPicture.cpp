#include "apps/desktop/WindowPicture.h"

#include "apps/desktop/MainWindow.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace Desktop
{
namespace
{

/// Long enough for a dialog to be laid out.
constexpr int kPatienceInMilliseconds = 150;

/// Where the upper left corner of something of that size goes that wants to be at `wanted`, so that it stays
/// within the window.
QPoint PlaceWithin(const QRect& window, const QSize& size, const QPoint& wanted)
{
    return {std::clamp(wanted.x(), 0, std::max(0, window.width() - size.width())),
            std::clamp(wanted.y(), 0, std::max(0, window.height() - size.height()))};
}

void PaintOpened(QPainter& painter, QWidget& opened, const MainWindow& window, const QString& name)
{
    QPoint wanted = (window.rect().bottomRight() - opened.rect().bottomRight()) / 2;
    const auto* const opener = window.findChild<QWidget*>(name);
    if (opener != nullptr && qobject_cast<QDialog*>(&opened) == nullptr)
        wanted = opener->mapTo(&window, opener->rect().bottomLeft());
    const QRect place(PlaceWithin(window.rect(), opened.size(), wanted), opened.size());
    painter.drawPixmap(place.topLeft(), opened.grab());
    // What frames a dialog on a screen belongs to the screen.
    painter.setPen(Qt::darkGray);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

QPixmap PaintAll(MainWindow& window, const QString& name)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    for (QWidget* const each : QApplication::topLevelWidgets())
    {
        if (each != &window && each->isVisible())
            PaintOpened(painter, *each, window, name);
    }
    return picture;
}

void CloseOpened(const MainWindow& window)
{
    for (QWidget* const each : QApplication::topLevelWidgets())
    {
        if (each != &window && each->isVisible())
            each->close();
    }
}

} // namespace

QPixmap PaintWindow(MainWindow& window, const QString& opened)
{
    window.show();
    QApplication::processEvents();
    if (opened.isEmpty())
        return window.grab();
    QPixmap picture;
    QEventLoop untilPainted;
    // A dialog that is opened runs a loop of its own, in which this comes due as well.
    QTimer::singleShot(kPatienceInMilliseconds, &untilPainted,
                       [&]
                       {
                           picture = PaintAll(window, opened);
                           CloseOpened(window);
                           untilPainted.quit();
                       });
    if (!window.OpenNamed(opened))
        return {};
    if (picture.isNull())
        untilPainted.exec();
    return picture;
}

} // namespace Desktop
