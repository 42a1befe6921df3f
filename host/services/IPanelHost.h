#pragma once

#include "host/Export.h"

class IDataContext;

/// The part of the user interface that shows panels.
class STYLEPROPERTIES_HOST_API IPanelHost
{
public:
    /// The context in which panels edit the properties of objects, which is the host's current one; may be
    /// null.
    virtual IDataContext* GetObjectPropertiesContext() = 0;

protected:
    ~IPanelHost() = default;
};
