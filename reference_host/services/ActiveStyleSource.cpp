#include "reference_host/services/ActiveStyleSource.h"

#include "reference_host/services/InterfaceIds.h"

namespace ReferenceHost
{

ActiveStyleSource::~ActiveStyleSource() = default;

void ActiveStyleSource::SetSource(IStylesSource* active) noexcept
{
    source = active;
}

void ActiveStyleSource::QueryInterface(const InterfaceId& id, void** out)
{
    if (out != nullptr && source != nullptr && id == kStylesSourceId)
        *out = source;
}

} // namespace ReferenceHost
