#include "reference_host/services/HostObject.h"

#include "reference_host/services/InterfaceIds.h"

#include <cstdint>

namespace ReferenceHost
{

HostObject::~HostObject() = default;

void HostObject::SetStyleApplicator(IStyleApplicator* styleApplicator, int number) noexcept
{
    applicator = styleApplicator;
    applicatorNumber = number;
}

void* HostObject::Query(const InterfaceId& id)
{
    if (id == kStyleApplicatorId)
        return applicator;
    // The answer to this one is a number in the guise of a pointer; whoever asks takes its low 32 bits.
    if (id == kStyleApplicatorNumberId)
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the required form of the answer
        return reinterpret_cast<void*>(static_cast<std::intptr_t>(applicatorNumber));
    return nullptr;
}

} // namespace ReferenceHost
