#pragma once

#include "apps/desktop/Document.h"
#include "apps/desktop/dialogs/WindowDialogs.h"
#include "host/utils/OvxStringT.h"

class QMenu;

namespace Desktop
{

/// Fills a menu with the styles that a panel's targets can take, the one they have checked, as the panel
/// lists them now. What is chosen is done to the document; everything borrowed outlives the menu.
void FillStyleMenu(QMenu& menu, Document& document, WindowDialogs& dialogs, const OvxStringT& panel);

} // namespace Desktop
