#pragma once

#include "host/Export.h"
#include "host/data_binding/IDialogService.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/services/IDialogFrontEnd.h"

namespace ReferenceHost
{

/// The dialogs and questions of an application: whoever asks for one reaches the front end in place.
///
/// Without a front end no dialog is shown, and every question is answered "no".
class STYLEPROPERTIES_HOST_API DialogService : public IDialogService
{
public:
    DialogService() = default;
    DialogService(const DialogService&) = delete;
    DialogService& operator=(const DialogService&) = delete;
    virtual ~DialogService();

    /// Puts a front end in place; borrowed until it is replaced, null for none, as at first.
    ///
    /// @returns the front end that was in place.
    IDialogFrontEnd* SetFrontEnd(IDialogFrontEnd* newFrontEnd) noexcept;

    void ShowDialog(const OvxStringT& key, IDataContext* context) override;

    /// With `result` 2 the dialog was accepted.
    void CloseDialog(const OvxStringT& key, int result, int reserved) override;

    /// Asks a question; see MessageMgr::ShowConfirmation.
    [[nodiscard]] int Confirm(const OvxStringT& text, int flags);

private:
    IDialogFrontEnd* frontEnd = nullptr; ///< Borrowed; may be null.
};

} // namespace ReferenceHost
