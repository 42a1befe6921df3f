#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

/// A question by name and the place for its answer, carried inside an Any that the asker keeps.
struct STYLEPROPERTIES_HOST_API ID_CString
{
    OvxStringT identifier; ///< What is asked about.
    OvxStringT result;     ///< The answer, written by whoever is asked.

    /// Equal in question and answer.
    friend bool operator==(const ID_CString&, const ID_CString&) = default;
    /// By the question, then by the answer.
    friend auto operator<=>(const ID_CString&, const ID_CString&) = default;
};
