#pragma once

#include "apps/workbench/IDialogAnswers.h"
#include "apps/workbench/Panel.h"
#include "host/data_binding/IReflectable.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/services/IDialogFrontEnd.h"

namespace Workbench
{

/// How a dialog ended.
enum class DialogEnd
{
    NotShown,
    Accepted,
    GivenUp
};

/// The dialogs that panels ask for, led through their bound names: what a dialog holds and when it closes is
/// decided by its data source, and what is entered by whoever answers.
class PanelDialogs final : public ReferenceHost::IDialogFrontEnd
{
public:
    PanelDialogs() = default;
    PanelDialogs(const PanelDialogs&) = delete;
    PanelDialogs& operator=(const PanelDialogs&) = delete;

    /// Sets who answers; borrowed until it is replaced. With null, as at first, every dialog is given up.
    ///
    /// @returns who answered before.
    IDialogAnswers* SetAnswers(IDialogAnswers* newAnswers) noexcept;

    [[nodiscard]] IDialogAnswers* GetAnswers() const noexcept { return answers; }

    /// Picks an entry of the list of styles that a panel built last, which may lead to a dialog: panels of
    /// some categories open the list of further styles themselves, and for those of any other it is shown
    /// here.
    void PickStyle(Panel& panel, const StyleListEntry& entry);

    /// How the dialog ended that was shown last since this was last asked.
    [[nodiscard]] DialogEnd TakeLastEnd() noexcept;

    void ShowDialog(const OvxStringT& key, IDataContext* context) override;
    void CloseDialog(const OvxStringT& key, bool isAccepted) override;
    int Confirm(const OvxStringT& text, int flags) override;

private:
    void ShowAddPreset(IDataContext& context);
    void ShowMoreStyles(IReflectable& panel);

    IDialogAnswers* answers = nullptr; ///< Borrowed; may be null.
    Panel* picking = nullptr;          ///< The panel whose entry is being picked; null at any other time.
    DialogEnd lastEnd = DialogEnd::NotShown;
};

/// Lets somebody answer the dialogs of a session for as long as it lives.
class AnswersInPlace
{
public:
    AnswersInPlace(PanelDialogs& itsDialogs, IDialogAnswers* answers)
        : dialogs(itsDialogs), before(itsDialogs.SetAnswers(answers))
    {
    }

    AnswersInPlace(const AnswersInPlace&) = delete;
    AnswersInPlace& operator=(const AnswersInPlace&) = delete;

    ~AnswersInPlace() { dialogs.SetAnswers(before); }

private:
    PanelDialogs& dialogs;
    IDialogAnswers* before;
};

} // namespace Workbench
