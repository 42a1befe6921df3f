#pragma once

#include "host/Export.h"

/// Marks a complete data source, as distinct from the parts that it is put together from.
class STYLEPROPERTIES_HOST_API IDataSourceBase
{
protected:
    IDataSourceBase() = default;
    ~IDataSourceBase() = default;
};
