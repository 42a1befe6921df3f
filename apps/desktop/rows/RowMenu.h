#pragma once

#include "apps/desktop/Document.h"
#include "apps/workbench/RowPlace.h"

class QMenu;

namespace Desktop
{

/// Fills the menu of a row, or of a panel's whole style: what can be done about where its value comes from.
/// Worded and enabled as the panel says now; what is chosen is done to the document, which outlives the menu.
void FillRowMenu(QMenu& menu, Document& document, const Workbench::RowPlace& place);

} // namespace Desktop
