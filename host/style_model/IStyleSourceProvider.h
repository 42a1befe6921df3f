#pragma once

#include "host/Export.h"
#include "host/utils/InterfaceId.h"

/// The part of an application that knows the active document's styles.
class STYLEPROPERTIES_HOST_API IStyleSourceProvider
{
public:
    /// Stores the interface named by `id` in `*out`, or leaves `*out` as it is when there is none.
    virtual void QueryInterface(const InterfaceId& id, void** out) = 0;

protected:
    ~IStyleSourceProvider() = default;
};
