#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataSource.h"

#include <cstddef>

namespace ReferenceHost
{

/// Who made a data source and wants to know when it is gone.
class STYLEPROPERTIES_HOST_API IDataSourceOwner
{
public:
    /// Tells that `dataSource` is being destroyed: the address is good for comparing only.
    virtual void OnDataSourceEnded(const IDataSource* dataSource) = 0;

protected:
    ~IDataSourceOwner() = default;
};

/// Marks that a notification is being delivered on this thread, for as long as it lives; scopes nest.
class STYLEPROPERTIES_HOST_API NotificationScope
{
public:
    NotificationScope() noexcept;
    NotificationScope(const NotificationScope&) = delete;
    NotificationScope& operator=(const NotificationScope&) = delete;

    ~NotificationScope() { --depth; }

private:
    int& depth; ///< The calling thread's; looked up once, which is most of what a scope costs.
};

/// Ends data sources at a moment when nobody is on the way through them.
///
/// A data source that is ended while listeners are being called may itself be further up in the calls, or be
/// the next to be called. It then waits here until the idle step. User interface's thread only.
class STYLEPROPERTIES_HOST_API DataSourceLifetime
{
public:
    DataSourceLifetime() = delete;

    /// Called by the constructor of every DataSourceImpl: what its destructor needs is made now, where that
    /// may fail.
    static void OnMade();

    /// Destroys `dataSource` at once, or, while a notification is being delivered on this thread, at the next
    /// TakeDeferred. Ending one that waits already changes nothing.
    static void End(IDataSource& dataSource);

    /// Destroys what waits, in the order in which it was ended, also what is added meanwhile. Does nothing
    /// while a notification is being delivered.
    ///
    /// @returns how many data sources were destroyed.
    static std::size_t TakeDeferred();

    /// How many data sources wait for their end.
    [[nodiscard]] static std::size_t CountDeferred();

    /// Remembers who wants to know when `dataSource` is gone; borrowed until then. Null forgets it. One data
    /// source has one owner.
    static void SetOwner(const IDataSource& dataSource, IDataSourceOwner* owner);

    /// Called by the destructor of every DataSourceImpl, however it is destroyed: it waits no longer, and its
    /// owner is told.
    static void OnDestroyed(const IDataSource* dataSource);
};

} // namespace ReferenceHost
