#pragma once

#include "host/Export.h"
#include "host/utils/InterfaceId.h"

/// The object of the host that a data context belongs to.
class STYLEPROPERTIES_HOST_API IHostObject
{
public:
    /// The pointer-sized answer to an identifier: an interface or a number; null when unknown.
    virtual void* Query(const InterfaceId& id) = 0;

protected:
    ~IHostObject() = default;
};
