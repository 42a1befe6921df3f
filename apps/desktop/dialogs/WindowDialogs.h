#pragma once

#include "apps/workbench/IDialogAnswers.h"

#include <utility>

class QWidget;

namespace Desktop
{

/// Asks a person what panels ask, in dialogs above the window.
class WindowDialogs final : public Workbench::IDialogAnswers
{
public:
    /// The window that dialogs belong to; borrowed, may be null.
    void SetWindow(QWidget* newWindow) noexcept { window = newWindow; }

    std::optional<OvxStringT> NamePreset(const OvxStringT& proposed) override;
    std::optional<std::size_t> ChooseStyle(const Workbench::StyleList& styles) override;
    bool Confirm(const OvxStringT& question) override;

    /// Tells whether a dialog was given up since this was last asked.
    [[nodiscard]] bool TakeGivenUp() noexcept { return std::exchange(isGivenUp, false); }

private:
    QWidget* window = nullptr;
    bool isGivenUp = false;
};

} // namespace Desktop
