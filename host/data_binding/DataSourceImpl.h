#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataSource.h"

/// The framework's own part of every data source.
class STYLEPROPERTIES_HOST_API DataSourceImpl : public IDataSource
{
public:
    DataSourceImpl();
    ~DataSourceImpl() override;

    [[nodiscard]] IDataContext* GetDataContext() const override;
    void SetDataSourceProvider(IDataContext* provider) override;
    void Destroy() override;

private:
    IDataContext* context = nullptr; ///< Borrowed from the host; null before it was set.
};
