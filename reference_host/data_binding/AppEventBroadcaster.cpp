#include "host/data_binding/IAppEventBroadcaster.h"
#include "reference_host/data_binding/UiThread.h"
#include "reference_host/utils/Immortal.h"

// Nothing here is computed ahead of an event that would have to be brought up to date first.
void AppUpdatePolicy::PreNotify(const OvxStringT& /*name*/)
{
}

void UiThreadPolicy::Check()
{
    ReferenceHost::UiThread::Check();
}

template <>
IAppEventBroadcaster& OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance()
{
    static ReferenceHost::Immortal<IAppEventBroadcaster> broadcaster;
    return *broadcaster;
}
