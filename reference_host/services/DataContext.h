#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "reference_host/data_binding/DataSourceLifetime.h"

#include <vector>

namespace ReferenceHost
{

/// A place where data sources live side by side, each under its name.
///
/// Owns the data sources that it creates; those that are added stay their owner's. One that ends by its own
/// Destroy leaves the context. All on the user interface's thread.
class STYLEPROPERTIES_HOST_API DataContext : public IDataContext, private IDataSourceOwner
{
public:
    /// Both are borrowed, outlive the context, and may be null.
    DataContext(IHostObject* hostObject, IDialogService* dialogService) noexcept;
    DataContext(const DataContext&) = delete;
    DataContext& operator=(const DataContext&) = delete;

    /// Ends the data sources that it created, the latest first. While a notification is being delivered they
    /// live on, without a context, until the idle step.
    virtual ~DataContext();

    /// Creates a data source with the factory registered under `typeKey`, and names it after that key.
    ///
    /// A data source that has this name already is given instead of a new one. What its constructor or
    /// PostConstruct throws comes through; the context is unchanged then.
    ///
    /// @returns the data source, borrowed; null when no factory has this key, or the factory makes none.
    IDataSource* CreateDataSource(const OvxStringT& typeKey);

    /// Takes in a data source of somebody else's under a name; borrowed until RemoveDataSource. It replaces a
    /// borrowed one of that name, and is refused when the context created one under it, or when it is null.
    ///
    /// @returns whether it was taken in.
    bool AddDataSource(const OvxStringT& name, IDataSource* dataSource);

    /// Takes out a data source: one that was created here is ended by its Destroy.
    ///
    /// @returns whether there was one of that name.
    bool RemoveDataSource(const OvxStringT& name);

    /// The names of the data sources, in the order in which they came in.
    [[nodiscard]] std::vector<OvxStringT> GetDataSourceNames() const;

    IHostObject* GetHostObject() override;
    IDataSource* GetDataSource(const OvxStringT& name) override;
    IDialogService* GetDialogService() override;

private:
    struct Resident
    {
        OvxStringT name;
        IDataSource* dataSource;
        bool isOwned;
    };

    void OnDataSourceEnded(const IDataSource* dataSource) override;
    std::vector<Resident>::iterator Find(const OvxStringT& name);

    IHostObject* host;               ///< Borrowed; may be null.
    IDialogService* dialogs;         ///< Borrowed; may be null.
    std::vector<Resident> residents; ///< In the order in which they came in.
};

} // namespace ReferenceHost
