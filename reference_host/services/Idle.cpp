#include "reference_host/services/Idle.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "reference_host/data_binding/DataSourceLifetime.h"
#include "reference_host/data_binding/FirstFailure.h"

namespace ReferenceHost
{

std::size_t RunIdle()
{
    std::size_t count = 0;
    FirstFailure failure;
    failure.Run([&] { count = OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance().DeliverPending(); });
    DataSourceLifetime::TakeDeferred();
    failure.Rethrow();
    return count;
}

} // namespace ReferenceHost
