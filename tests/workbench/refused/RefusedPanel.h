#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"

/// A panel without fault, for modules that have one elsewhere.
class RefusedPanelDatasource final : public BaseStylePropertiesDatasource,
                                     public DataSource<RefusedPanelDatasource, true>
{
public:
    void FillDataSourceMap() {}
};
