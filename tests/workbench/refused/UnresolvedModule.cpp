// A module that needs something that there is not.

#include "panels/PanelRegistration.h"
#include "tests/workbench/refused/RefusedPanel.h"

extern int NobodyDefinesThis();

namespace
{

const Panels::PanelRegistration<RefusedPanelDatasource> registration;
const int needed = NobodyDefinesThis();

} // namespace
