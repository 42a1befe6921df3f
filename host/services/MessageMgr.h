#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

/// Questions put to the person.
class STYLEPROPERTIES_HOST_API MessageMgr
{
public:
    MessageMgr() = delete;

    /// Asks, and waits for the answer.
    ///
    /// @param flags which buttons and picture, as in a message box: 4 for yes and no, plus 32 for a question
    /// mark.
    /// @returns the message-box result: 6 for yes, 7 for no.
    static int ShowConfirmation(const OvxStringT& text, int flags);
};
