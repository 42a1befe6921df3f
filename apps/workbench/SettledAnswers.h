#pragma once

#include "apps/workbench/IDialogAnswers.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace Workbench
{

/// Answers that are settled beforehand; what is not settled is asked of somebody else.
class SettledAnswers final : public IDialogAnswers
{
public:
    /// `others` is borrowed; with null what is not settled is given up, and answered with no.
    explicit SettledAnswers(IDialogAnswers* others = nullptr) : otherwise(others) {}

    /// The name that a preset gets. Given once: when it does not do, the dialog is given up.
    void SettlePresetName(OvxStringT name) { presetName = std::move(name); }

    /// The style that is chosen, by its name.
    void SettleStyle(OvxStringT name) { styleName = std::move(name); }

    /// The style that is chosen, by the id of its entry.
    void SettleStyle(unsigned id) { styleId = id; }

    /// What every question is answered with.
    void SettleConfirmation(bool isYes) { confirmation = isYes; }

    std::optional<OvxStringT> NamePreset(const OvxStringT& proposed) override;

    /// None when no entry is the one that is settled.
    std::optional<std::size_t> ChooseStyle(const StyleList& styles) override;

    bool Confirm(const OvxStringT& question) override;

private:
    IDialogAnswers* otherwise; ///< Borrowed; may be null.
    std::optional<OvxStringT> presetName;
    bool isPresetNameGiven = false;
    std::optional<OvxStringT> styleName;
    std::optional<unsigned> styleId;
    std::optional<bool> confirmation;
};

} // namespace Workbench
