#pragma once

#include "host/Export.h"
#include "host/services/IPanelHost.h"

/// The application's user interface, as components reach it.
class STYLEPROPERTIES_HOST_API IAppInterface
{
public:
    /// What holds the panels; borrowed, null when the application has none.
    virtual IPanelHost* GetPanelHost() = 0;

protected:
    ~IAppInterface() = default;
};
