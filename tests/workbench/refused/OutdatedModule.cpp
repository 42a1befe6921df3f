// A module that was built for another version: what the header says of the present one is left out.

#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "tests/workbench/refused/RefusedPanel.h"

#if defined(_WIN32)
#define OUTDATED_EXPORT extern "C" __declspec(dllexport)
#else
#define OUTDATED_EXPORT extern "C" __attribute__((visibility("default")))
#endif

OUTDATED_EXPORT const char* styleproperties_panel_interface()
{
    return "0.0";
}

namespace
{

struct OwnRegistration
{
    OwnRegistration() { IDataSourceRegistrar::GetInstance().RegisterFactory(&factory); }

    DataSourceFactory<RefusedPanelDatasource> factory{L"frame"};
};

const OwnRegistration registration;

} // namespace
