#include "host/data_binding/DataSourceImpl.h"

#include "reference_host/data_binding/DataSourceLifetime.h"

IDataSource::~IDataSource() = default;

DataSourceImpl::DataSourceImpl()
{
    ReferenceHost::DataSourceLifetime::OnMade();
}

DataSourceImpl::~DataSourceImpl()
{
    ReferenceHost::DataSourceLifetime::OnDestroyed(this);
}

IDataContext* DataSourceImpl::GetDataContext() const
{
    return context;
}

void DataSourceImpl::SetDataSourceProvider(IDataContext* provider)
{
    context = provider;
}

void DataSourceImpl::Destroy()
{
    ReferenceHost::DataSourceLifetime::End(*this);
}
