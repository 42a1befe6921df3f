#pragma once

#include "host/Export.h"

class IDataContext;

/// An object that serves bound properties within a data context.
class STYLEPROPERTIES_HOST_API IDataSource
{
public:
    IDataSource() = default;
    IDataSource(const IDataSource&) = delete;
    IDataSource& operator=(const IDataSource&) = delete;
    virtual ~IDataSource();

    /// The context this data source lives in; borrowed, null before it was set.
    [[nodiscard]] virtual IDataContext* GetDataContext() const = 0;

    /// Sets the context. It must outlive this data source, or be taken away with null before it goes.
    virtual void SetDataSourceProvider(IDataContext* provider) = 0;

    /// Ends this data source, which was created by a factory. While a notification is being delivered it
    /// takes effect at the next idle step.
    virtual void Destroy() = 0;
};
