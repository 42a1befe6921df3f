#include "host/data_binding/IDataSourceRegistrar.h"
#include "reference_host/utils/Immortal.h"

#include <algorithm>

namespace
{

/// Keeps the factories in order of registration: there are as many as data source classes, a few dozen at
/// most.
class DataSourceRegistrar final : public IDataSourceRegistrar
{
public:
    void RegisterFactory(IDataSourceFactory* factory) override
    {
        if (factory != nullptr && std::find(factories.begin(), factories.end(), factory) == factories.end())
            factories.push_back(factory);
    }

    void UnregisterFactory(IDataSourceFactory* factory) override { std::erase(factories, factory); }

    [[nodiscard]] IDataSourceFactory* FindFactory(const OvxStringT& typeKey) const override
    {
        const auto found =
            std::find_if(factories.begin(), factories.end(),
                         [&](const IDataSourceFactory* factory) { return factory->GetTypeKey() == typeKey; });
        return found == factories.end() ? nullptr : *found;
    }

    [[nodiscard]] std::vector<IDataSourceFactory*> GetFactories() const override { return factories; }

private:
    std::vector<IDataSourceFactory*> factories;
};

} // namespace

IDataSourceRegistrar& IDataSourceRegistrar::GetInstance()
{
    static ReferenceHost::Immortal<DataSourceRegistrar> registrar;
    return *registrar;
}
