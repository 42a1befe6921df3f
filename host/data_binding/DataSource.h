#pragma once

#include "host/data_binding/IDataSourceBase.h"
#include "host/data_binding/PartialDataSource.h"

/// The base of a complete data source class `T`, which a DataSourceFactory can make.
template <class T, bool RegistersMap>
class DataSource : public PartialDataSource<T, RegistersMap>, public IDataSourceBase
{
};
