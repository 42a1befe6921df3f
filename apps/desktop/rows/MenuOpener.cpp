#include "apps/desktop/rows/MenuOpener.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

namespace Desktop
{
namespace
{

class MenuOpener final : public QObject
{
public:
    MenuOpener(QMenu& itsMenu, QWidget& itsWidget) : QObject(&itsWidget), menu(itsMenu), widget(itsWidget) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ContextMenu)
        {
            const auto& asked = *static_cast<QContextMenuEvent*>(event);
            menu.popup(asked.reason() == QContextMenuEvent::Mouse ? asked.globalPos() : PlaceBelow());
            return true;
        }
        // The platform tells of the key for menus itself, but not of this one.
        if (event->type() == QEvent::KeyPress && IsMenuKey(*static_cast<QKeyEvent*>(event)))
        {
            menu.popup(PlaceBelow());
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static bool IsMenuKey(const QKeyEvent& key)
    {
        return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
    }

    [[nodiscard]] QPoint PlaceBelow() const { return widget.mapToGlobal(widget.rect().bottomLeft()); }

    QMenu& menu;
    QWidget& widget;
};

} // namespace

void OpenMenuFrom(QWidget& widget, QMenu& menu)
{
    auto* const opener = new MenuOpener(menu, widget);
    widget.installEventFilter(opener);
    for (QWidget* const inner : widget.findChildren<QWidget*>())
    {
        if (!inner->isWindow())
            inner->installEventFilter(opener);
    }
}

} // namespace Desktop
