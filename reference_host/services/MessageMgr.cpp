#include "host/services/MessageMgr.h"

#include "reference_host/services/IConfirmation.h"

#include <utility>

namespace ReferenceHost
{

namespace
{

constinit IConfirmation* confirmation = nullptr;

} // namespace

IConfirmation* SetConfirmation(IConfirmation* frontEnd) noexcept
{
    return std::exchange(confirmation, frontEnd);
}

} // namespace ReferenceHost

int MessageMgr::ShowConfirmation(const OvxStringT& text, int flags)
{
    using namespace ReferenceHost;
    return confirmation == nullptr ? kAnswerNo : confirmation->Confirm(text, flags);
}
