#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataContext.h"
#include "host/utils/OvxStringT.h"

namespace ReferenceHost
{

/// Answers of a question, as a message box gives them.
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

/// What puts dialogs and questions before the person: a terminal, a window, or answers settled beforehand.
class STYLEPROPERTIES_HOST_API IDialogFrontEnd
{
public:
    /// Shows the dialog of that key on the data of `context`, which is borrowed while the dialog is shown and
    /// may be null. May come back before the dialog is closed. Keys without a dialog are passed over.
    virtual void ShowDialog(const OvxStringT& key, IDataContext* context) = 0;

    /// Closes a dialog; one that is not shown is passed over.
    virtual void CloseDialog(const OvxStringT& key, bool isAccepted) = 0;

    /// Asks a question, and waits for the answer; `flags` and result are those of
    /// MessageMgr::ShowConfirmation.
    virtual int Confirm(const OvxStringT& text, int flags) = 0;

protected:
    ~IDialogFrontEnd() = default;
};

} // namespace ReferenceHost
