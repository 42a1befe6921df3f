// A module that registers one class twice.

#include "panels/PanelRegistration.h"
#include "tests/workbench/refused/RefusedPanel.h"

namespace
{

const Panels::PanelRegistration<RefusedPanelDatasource> registration;
const Panels::PanelRegistration<RefusedPanelDatasource> again;

} // namespace
