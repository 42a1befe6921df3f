#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/style_model/IStyleApplicator.h"

#include <utility>
#include <vector>

namespace TinyHost
{

/// A place where data sources live, with the applicator that they are to write through, if any.
class STYLEPROPERTIES_HOST_API Context final : public IDataContext, private IHostObject
{
public:
    /// All is borrowed, outlives the context, and may be null. `applicatorNumber` is the id by which the
    /// applicator knows the data sources of this context.
    explicit Context(IDialogService* dialogService, IStyleApplicator* applicator = nullptr,
                     int applicatorNumber = 0);
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    /// Ends the data sources that were created here, the latest first.
    ~Context();

    /// Creates a data source with the factory registered under `typeKey`, or gives the one that is there.
    ///
    /// @returns the data source, owned by this context until its own Destroy; null without such a factory.
    IDataSource* Create(const OvxStringT& typeKey);

    IHostObject* GetHostObject() override { return this; }

    IDataSource* GetDataSource(const OvxStringT& name) override;

    IDialogService* GetDialogService() override { return dialogs; }

private:
    friend void ForgetDataSource(const IDataSource* ended);

    void* Query(const InterfaceId& id) override;

    IDialogService* dialogs;
    IStyleApplicator* applicator;
    int applicatorNumber;
    std::vector<std::pair<OvxStringT, IDataSource*>> residents; ///< Owned.
};

/// Destroys the data sources whose end was put off because a notification was under way.
STYLEPROPERTIES_HOST_API void DestroyDataSourcesThatWait();

} // namespace TinyHost
