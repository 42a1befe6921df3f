#pragma once

#include "host/Export.h"
#include "host/data_binding/EventBroadcaster.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/Singleton.h"

/// What the application does before it delivers an event; the host's own.
struct STYLEPROPERTIES_HOST_API AppUpdatePolicy
{
    /// Called with the name of an event before its listeners are.
    static void PreNotify(const OvxStringT& name);
};

/// Debug builds assert the user interface's thread; the host's own.
struct STYLEPROPERTIES_HOST_API UiThreadPolicy
{
    /// Asserts in debug builds that the caller is on the thread of the user interface.
    static void Check();
};

/// The application's own broadcaster, reached by Singleton<IAppEventBroadcaster>::GetInstance().
using IAppEventBroadcaster = EventBroadcaster<AppUpdatePolicy, UiThreadPolicy>;

/// The host's own object, whichever module asks.
template <>
STYLEPROPERTIES_HOST_API IAppEventBroadcaster& OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
