// A module with a static object that ends the program.

#include "panels/PanelRegistration.h"
#include "tests/workbench/refused/RefusedPanel.h"

#include <cstdlib>

namespace
{

const Panels::PanelRegistration<RefusedPanelDatasource> registration;

struct Landmine
{
    Landmine() { std::abort(); }
};

const Landmine landmine;

} // namespace
