#include "reference_host/services/DialogService.h"

#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr int kAccepted = 2;

} // namespace

DialogService::~DialogService() = default;

IDialogFrontEnd* DialogService::SetFrontEnd(IDialogFrontEnd* newFrontEnd) noexcept
{
    return std::exchange(frontEnd, newFrontEnd);
}

void DialogService::ShowDialog(const OvxStringT& key, IDataContext* context)
{
    if (frontEnd != nullptr)
        frontEnd->ShowDialog(key, context);
}

void DialogService::CloseDialog(const OvxStringT& key, int result, int /*reserved*/)
{
    if (frontEnd != nullptr)
        frontEnd->CloseDialog(key, result == kAccepted);
}

int DialogService::Confirm(const OvxStringT& text, int flags)
{
    return frontEnd == nullptr ? kAnswerNo : frontEnd->Confirm(text, flags);
}

} // namespace ReferenceHost
