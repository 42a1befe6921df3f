#pragma once

#include "apps/desktop/Document.h"
#include "apps/desktop/dialogs/WindowDialogs.h"
#include "apps/workbench/Panel.h"

class QMenu;

namespace Desktop
{

/// Tells whether a panel offers presets.
[[nodiscard]] bool OffersPresets(const Workbench::Panel& panel);

/// Fills a menu with the presets of a panel and their pictures, and with what adds and deletes one. What is
/// chosen is done to the document; everything borrowed outlives the menu.
void FillPresetMenu(QMenu& menu, Document& document, WindowDialogs& dialogs, Workbench::Panel& panel);

} // namespace Desktop
