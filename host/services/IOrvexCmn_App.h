#pragma once

#include "host/Export.h"
#include "host/style_model/IStyleSourceProvider.h"
#include "host/utils/InterfaceId.h"

/// The application, as it is handed to the library at start-up.
class STYLEPROPERTIES_HOST_API IOrvexCmn_App
{
public:
    /// Stores the interface named by `id` in `*out`, or leaves `*out` as it is when there is none.
    virtual void QueryInterface(const InterfaceId& id, void** out) = 0;

    /// The provider of the active document's styles; null while there is no document.
    virtual IStyleSourceProvider* GetActiveStyleSourceProvider() = 0;

protected:
    ~IOrvexCmn_App() = default;
};
