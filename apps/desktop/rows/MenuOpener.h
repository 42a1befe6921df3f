#pragma once

class QMenu;
class QWidget;

namespace Desktop
{

/// Lets a menu be opened from a widget and everything in it: by a right click, by the key for menus, and by
/// Shift+F10. In place of the widget's own menu, if it has one. The menu outlives the widget or is its child.
void OpenMenuFrom(QWidget& widget, QMenu& menu);

} // namespace Desktop
