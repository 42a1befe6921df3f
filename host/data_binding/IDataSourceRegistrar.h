#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataSourceFactory.h"
#include "host/utils/OvxStringT.h"

#include <vector>

/// Knows the factories of all loaded modules. Outlives every module.
class STYLEPROPERTIES_HOST_API IDataSourceRegistrar
{
public:
    /// The one registrar of the process; made on first use, from any static initialiser.
    static IDataSourceRegistrar& GetInstance();

    /// Adds a factory; borrowed until UnregisterFactory. A second one with the same type key is kept behind
    /// the first.
    virtual void RegisterFactory(IDataSourceFactory* factory) = 0;

    /// Forgets a factory; does nothing for one that is not registered.
    virtual void UnregisterFactory(IDataSourceFactory* factory) = 0;

    /// The factory that was registered first under `typeKey`; null when there is none.
    [[nodiscard]] virtual IDataSourceFactory* FindFactory(const OvxStringT& typeKey) const = 0;

    /// All factories, in order of registration.
    [[nodiscard]] virtual std::vector<IDataSourceFactory*> GetFactories() const = 0;

protected:
    ~IDataSourceRegistrar() = default;
};
