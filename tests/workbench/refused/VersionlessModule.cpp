// A module that registers its class without the header by which modules tell what they were built for.

#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "tests/workbench/refused/RefusedPanel.h"

namespace
{

struct OwnRegistration
{
    OwnRegistration() { IDataSourceRegistrar::GetInstance().RegisterFactory(&factory); }

    DataSourceFactory<RefusedPanelDatasource> factory{L"frame"};
};

const OwnRegistration registration;

} // namespace
