#include "reference_host/services/DataContext.h"

#include "host/data_binding/IDataSourceRegistrar.h"

#include <algorithm>

namespace ReferenceHost
{

namespace
{

/// Ends a data source that a context created. It is cut off from the context first, which may be gone when a
/// deferred end takes effect.
void EndOwned(IDataSource& dataSource)
{
    DataSourceLifetime::SetOwner(dataSource, nullptr);
    dataSource.SetDataSourceProvider(nullptr);
    dataSource.Destroy();
}

} // namespace

DataContext::DataContext(IHostObject* hostObject, IDialogService* dialogService) noexcept
    : host(hostObject), dialogs(dialogService)
{
}

DataContext::~DataContext()
{
    while (!residents.empty())
    {
        const Resident last = residents.back();
        residents.pop_back();
        if (last.isOwned)
            EndOwned(*last.dataSource);
    }
}

IDataSource* DataContext::CreateDataSource(const OvxStringT& typeKey)
{
    if (IDataSource* present = GetDataSource(typeKey))
        return present;
    IDataSourceFactory* factory = IDataSourceRegistrar::GetInstance().FindFactory(typeKey);
    IDataSource* created = factory == nullptr ? nullptr : factory->Create(this);
    if (created == nullptr)
        return nullptr;
    residents.push_back({typeKey, created, true});
    DataSourceLifetime::SetOwner(*created, this);
    return created;
}

bool DataContext::AddDataSource(const OvxStringT& name, IDataSource* dataSource)
{
    const auto found = Find(name);
    if (dataSource == nullptr || (found != residents.end() && found->isOwned))
        return false;
    if (found != residents.end())
        found->dataSource = dataSource;
    else
        residents.push_back({name, dataSource, false});
    return true;
}

bool DataContext::RemoveDataSource(const OvxStringT& name)
{
    const auto found = Find(name);
    if (found == residents.end())
        return false;
    const Resident removed = *found;
    residents.erase(found);
    if (removed.isOwned)
        EndOwned(*removed.dataSource);
    return true;
}

std::vector<OvxStringT> DataContext::GetDataSourceNames() const
{
    std::vector<OvxStringT> names;
    for (const Resident& resident : residents)
        names.push_back(resident.name);
    return names;
}

IHostObject* DataContext::GetHostObject()
{
    return host;
}

IDataSource* DataContext::GetDataSource(const OvxStringT& name)
{
    const auto found = Find(name);
    return found == residents.end() ? nullptr : found->dataSource;
}

IDialogService* DataContext::GetDialogService()
{
    return dialogs;
}

void DataContext::OnDataSourceEnded(const IDataSource* dataSource)
{
    std::erase_if(residents, [&](const Resident& resident) { return resident.dataSource == dataSource; });
}

std::vector<DataContext::Resident>::iterator DataContext::Find(const OvxStringT& name)
{
    return std::find_if(residents.begin(), residents.end(),
                        [&](const Resident& resident) { return resident.name == name; });
}

} // namespace ReferenceHost
