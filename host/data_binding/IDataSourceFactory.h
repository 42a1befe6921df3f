#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

class IDataContext;
class IDataSource;

/// Makes data sources of one class.
class STYLEPROPERTIES_HOST_API IDataSourceFactory
{
public:
    virtual ~IDataSourceFactory() = default;

    /// The name of the class, by which the factory and its data sources are found.
    [[nodiscard]] virtual OvxStringT GetTypeKey() const = 0;

    /// Makes a data source that lives in `provider`, complete and post-constructed. Ended by its Destroy.
    virtual IDataSource* Create(IDataContext* provider) = 0;

    /// The data source of this class that `provider` holds; null when it holds none.
    virtual IDataSource* Find(IDataContext* provider) = 0;

    /// What kind of data sources these are: 2 for those that live in a context.
    [[nodiscard]] virtual int GetKind() const = 0;

    /// The scope in which a data source of this class is unique.
    [[nodiscard]] virtual OvxStringT GetScopeName() const = 0;
};
