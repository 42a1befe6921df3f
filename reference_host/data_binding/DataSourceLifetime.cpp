#include "reference_host/data_binding/DataSourceLifetime.h"

#include "reference_host/utils/Immortal.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

namespace
{

struct Lifetimes
{
    std::vector<IDataSource*> deferred; ///< Ended, not yet destroyed; each once.
    std::unordered_map<const IDataSource*, IDataSourceOwner*> owners;
};

Lifetimes& GetLifetimes()
{
    static Immortal<Lifetimes> lifetimes;
    return *lifetimes;
}

constinit thread_local int notificationDepth = 0;

} // namespace

NotificationScope::NotificationScope() noexcept : depth(notificationDepth)
{
    ++depth;
}

void DataSourceLifetime::OnMade()
{
    static_cast<void>(GetLifetimes());
}

void DataSourceLifetime::End(IDataSource& dataSource)
{
    if (notificationDepth == 0)
    {
        const std::unique_ptr<IDataSource> ended(&dataSource);
        return;
    }
    std::vector<IDataSource*>& deferred = GetLifetimes().deferred;
    if (std::find(deferred.begin(), deferred.end(), &dataSource) == deferred.end())
        deferred.push_back(&dataSource);
}

std::size_t DataSourceLifetime::TakeDeferred()
{
    if (notificationDepth != 0)
        return 0;

    std::vector<IDataSource*>& deferred = GetLifetimes().deferred;
    std::size_t count = 0;
    while (!deferred.empty())
    {
        const std::unique_ptr<IDataSource> ended(deferred.front());
        deferred.erase(deferred.begin());
        ++count;
    }
    return count;
}

std::size_t DataSourceLifetime::CountDeferred()
{
    return GetLifetimes().deferred.size();
}

void DataSourceLifetime::SetOwner(const IDataSource& dataSource, IDataSourceOwner* owner)
{
    if (owner == nullptr)
        GetLifetimes().owners.erase(&dataSource);
    else
        GetLifetimes().owners[&dataSource] = owner;
}

void DataSourceLifetime::OnDestroyed(const IDataSource* dataSource)
{
    Lifetimes& lifetimes = GetLifetimes();
    std::erase(lifetimes.deferred, dataSource);
    const auto found = lifetimes.owners.find(dataSource);
    if (found == lifetimes.owners.end())
        return;

    IDataSourceOwner* owner = found->second;
    lifetimes.owners.erase(found);
    owner->OnDataSourceEnded(dataSource);
}

} // namespace ReferenceHost
