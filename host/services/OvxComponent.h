#pragma once

#include "host/Export.h"
#include "host/services/IAppInterface.h"

/// The entry to the application's services for any component.
class STYLEPROPERTIES_HOST_API OvxComponent
{
public:
    OvxComponent() = delete;

    /// The user interface; null before it stands and after it is gone.
    static IAppInterface* GetAppInterface();
};
