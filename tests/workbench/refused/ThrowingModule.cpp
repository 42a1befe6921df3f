// A module with a static object that cannot be made.

#include "panels/PanelRegistration.h"
#include "tests/workbench/refused/RefusedPanel.h"

#include <stdexcept>

namespace
{

const Panels::PanelRegistration<RefusedPanelDatasource> registration;

struct Licence
{
    Licence() { throw std::runtime_error("the licence of this module has run out"); }
};

const Licence licence;

} // namespace
