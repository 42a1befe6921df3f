#pragma once

#include <QPixmap>
#include <QString>

namespace Desktop
{

class MainWindow;

/// Shows the window, opens in it what has the name `opened`, if it is not empty, and paints all that; then
/// closes what was opened.
///
/// Lists are painted below what opens them and dialogs in the middle, wherever the screen had room for them.
///
/// @returns an empty picture when there is nothing of that name to open.
[[nodiscard]] QPixmap PaintWindow(MainWindow& window, const QString& opened);

} // namespace Desktop
