#pragma once

#include "apps/workbench/StyleList.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <optional>

namespace Workbench
{

/// Who answers what dialogs ask: a person at a terminal or a window, or answers that are settled beforehand.
class IDialogAnswers
{
public:
    /// A name for a new preset. Asked again while the dialog stays open: after an empty name, and when a
    /// preset of that name is not to be replaced.
    ///
    /// @param proposed what the dialog holds.
    /// @returns none to give up.
    virtual std::optional<OvxStringT> NamePreset(const OvxStringT& proposed) = 0;

    /// One of the styles that the list of a panel does not show.
    ///
    /// @returns the place of the entry, less than their number; none to give up.
    virtual std::optional<std::size_t> ChooseStyle(const StyleList& styles) = 0;

    /// A question that is answered with yes or no.
    virtual bool Confirm(const OvxStringT& question) = 0;

protected:
    ~IDialogAnswers() = default;
};

} // namespace Workbench
