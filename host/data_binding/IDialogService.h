#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

class IDataContext;

/// Shows and closes dialogs by key.
class STYLEPROPERTIES_HOST_API IDialogService
{
public:
    /// Shows the dialog of that key on the data of `context`. Keys without a dialog are ignored.
    virtual void ShowDialog(const OvxStringT& key, IDataContext* context) = 0;

    /// Closes a shown dialog; `result` 2 accepts it. `reserved` is 0.
    virtual void CloseDialog(const OvxStringT& key, int result, int reserved) = 0;

protected:
    ~IDialogService() = default;
};
