#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

namespace ReferenceHost
{

/// Answers of a confirmation, as a message box gives them.
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

/// The front end that puts questions to the person: a terminal, a window, or a script's settled answers.
class STYLEPROPERTIES_HOST_API IConfirmation
{
public:
    /// Asks, and waits for the answer; `flags` and result are those of MessageMgr::ShowConfirmation.
    virtual int Confirm(const OvxStringT& text, int flags) = 0;

protected:
    ~IConfirmation() = default;
};

/// Puts a front end in place; borrowed until it is replaced. With null, which it is at first, every question
/// is answered "no".
///
/// @returns the front end that was in place.
STYLEPROPERTIES_HOST_API IConfirmation* SetConfirmation(IConfirmation* frontEnd) noexcept;

} // namespace ReferenceHost
