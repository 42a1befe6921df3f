#include "host/services/MessageMgr.h"

#include "reference_host/services/Application.h"
#include "reference_host/services/IDialogFrontEnd.h"

int MessageMgr::ShowConfirmation(const OvxStringT& text, int flags)
{
    using namespace ReferenceHost;
    Application* application = Application::GetCurrent();
    return application == nullptr ? kAnswerNo : application->GetDialogs().Confirm(text, flags);
}
