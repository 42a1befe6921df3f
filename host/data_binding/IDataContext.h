#pragma once

#include "host/Export.h"
#include "host/data_binding/IDialogService.h"
#include "host/data_binding/IHostObject.h"
#include "host/utils/OvxStringT.h"

class IDataSource;

/// Where a data source lives: the host object it belongs to, its neighbours by name, and the dialogs.
///
/// Everything returned is borrowed and may be null.
class STYLEPROPERTIES_HOST_API IDataContext
{
public:
    /// The host object that data sources of this context belong to.
    virtual IHostObject* GetHostObject() = 0;

    /// The data source of that name or type key.
    virtual IDataSource* GetDataSource(const OvxStringT& name) = 0;

    /// What shows and closes dialogs.
    virtual IDialogService* GetDialogService() = 0;

protected:
    ~IDataContext() = default;
};
