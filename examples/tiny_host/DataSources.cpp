// Data sources: the factories that make them, the contexts they live in, and their end.

#include "tiny_host/TinyContext.h"

#include "host/data_binding/DataSourceImpl.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "tiny_host/InterfaceNames.h"
#include "tiny_host/Lasting.h"
#include "tiny_host/ListenerRow.h"

#include <algorithm>
#include <cstdint>
#include <memory>

namespace TinyHost
{

namespace
{

class Registrar final : public IDataSourceRegistrar
{
public:
    void RegisterFactory(IDataSourceFactory* factory) override
    {
        if (factory != nullptr && std::ranges::find(factories, factory) == factories.end())
            factories.push_back(factory);
    }

    void UnregisterFactory(IDataSourceFactory* factory) override { std::erase(factories, factory); }

    [[nodiscard]] IDataSourceFactory* FindFactory(const OvxStringT& typeKey) const override
    {
        const auto found = std::ranges::find_if(factories, [&typeKey](const IDataSourceFactory* each)
                                                { return each->GetTypeKey() == typeKey; });
        return found == factories.end() ? nullptr : *found;
    }

    [[nodiscard]] std::vector<IDataSourceFactory*> GetFactories() const override { return factories; }

private:
    std::vector<IDataSourceFactory*> factories;
};

struct Lives
{
    std::vector<Context*> contexts;
    std::vector<IDataSource*> waiting; ///< For their end.
};

} // namespace

Context::Context(IDialogService* dialogService, IStyleApplicator* styleApplicator, int number)
    : dialogs(dialogService), applicator(styleApplicator), applicatorNumber(number)
{
    Lasting<Lives>().contexts.push_back(this);
}

Context::~Context()
{
    std::erase(Lasting<Lives>().contexts, this);
    for (; !residents.empty(); residents.pop_back())
    {
        // One whose end is put off must not find this context any more.
        residents.back().second->SetDataSourceProvider(nullptr);
        residents.back().second->Destroy();
    }
}

IDataSource* Context::Create(const OvxStringT& typeKey)
{
    if (IDataSource* const present = GetDataSource(typeKey))
        return present;
    IDataSourceFactory* const factory = IDataSourceRegistrar::GetInstance().FindFactory(typeKey);
    IDataSource* const created = factory == nullptr ? nullptr : factory->Create(this);
    if (created != nullptr)
        residents.emplace_back(typeKey, created);
    return created;
}

IDataSource* Context::GetDataSource(const OvxStringT& name)
{
    const auto found =
        std::ranges::find_if(residents, [&name](const auto& each) { return each.first == name; });
    return found == residents.end() ? nullptr : found->second;
}

void* Context::Query(const InterfaceId& id)
{
    if (id == kStyleApplicatorId)
        return applicator;
    // This answer is a number in the place of a pointer.
    if (id == kStyleApplicatorNumberId)
        return reinterpret_cast<void*>(static_cast<std::intptr_t>(applicatorNumber));
    return nullptr;
}

/// Called for each data source that is gone, by whomever it was ended.
void ForgetDataSource(const IDataSource* ended)
{
    auto& lives = Lasting<Lives>();
    std::erase(lives.waiting, ended);
    for (Context* const context : lives.contexts)
        std::erase_if(context->residents, [ended](const auto& each) { return each.second == ended; });
}

void DestroyDataSourcesThatWait()
{
    auto& waiting = Lasting<Lives>().waiting;
    while (!waiting.empty() && !DeliveryScope::IsAnyOpen())
    {
        const std::unique_ptr<IDataSource> ended(waiting.front());
        waiting.erase(waiting.begin());
    }
}

} // namespace TinyHost

IDataSource::~IDataSource() = default;

DataSourceImpl::DataSourceImpl() = default;

DataSourceImpl::~DataSourceImpl()
{
    TinyHost::ForgetDataSource(this);
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
    if (!TinyHost::DeliveryScope::IsAnyOpen())
    {
        const std::unique_ptr<IDataSource> ended(this);
        return;
    }
    // The notification may be on its way through this very object.
    auto& waiting = TinyHost::Lasting<TinyHost::Lives>().waiting;
    if (std::ranges::find(waiting, this) == waiting.end())
        waiting.push_back(this);
}

IDataSourceRegistrar& IDataSourceRegistrar::GetInstance()
{
    return TinyHost::Lasting<TinyHost::Registrar>();
}
