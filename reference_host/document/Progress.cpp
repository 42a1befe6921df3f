#include "reference_host/document/Progress.h"

namespace ReferenceHost
{

OperationCancelled::~OperationCancelled() = default;

const char* OperationCancelled::what() const noexcept
{
    return "the operation was cancelled";
}

} // namespace ReferenceHost
