#include "apps/desktop/VectorIcon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

// The resources of a static library have to be asked for, and outside all namespaces.
static void NeedIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace Desktop
{

QIcon MakeVectorIcon(const QString& name)
{
    NeedIcons();
    QSvgRenderer picture(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!picture.isValid())
        return {};
    // Sharp at four times the resolution of plain screens.
    QPixmap pixmap(4 * picture.defaultSize());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    picture.render(&painter);
    return QIcon(pixmap);
}

} // namespace Desktop
