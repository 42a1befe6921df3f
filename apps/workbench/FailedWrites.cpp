#include "apps/workbench/FailedWrites.h"

#include <csignal>

namespace Workbench
{

void OutliveFailedWrites()
{
#if defined(SIGPIPE)
    std::signal(SIGPIPE, SIG_IGN);
#endif
#if defined(SIGXFSZ)
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

} // namespace Workbench
