#pragma once

#include "host/Export.h"
#include "host/services/IPanelHost.h"

/// The application's user interface, as components reach it.
class STYLEPROPERTIES_HOST_API IAppInterface
{
public:
    virtual IPanelHost* GetPanelHost() = 0;

protected:
    ~IAppInterface() = default;
};
