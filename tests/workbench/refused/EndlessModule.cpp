// A module with a static object that is never finished.

#include "panels/PanelRegistration.h"
#include "tests/workbench/refused/RefusedPanel.h"

#include <chrono>
#include <thread>

namespace
{

const Panels::PanelRegistration<RefusedPanelDatasource> registration;

struct Waiting
{
    Waiting()
    {
        for (volatile bool isReady = false; !isReady;)
            std::this_thread::sleep_for(std::chrono::seconds(1));
    }
};

const Waiting waiting;

} // namespace
