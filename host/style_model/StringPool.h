#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringViewT.h"

namespace Styles
{

/// The process-wide pool that keeps one copy of each text used as a key.
///
/// Texts are never given back: their addresses are the identities of keys for as long as the process runs.
/// Safe from any thread and from any static initialiser.
class STYLEPROPERTIES_HOST_API StringPool
{
public:
    /// A text of the pool. Only the pool's own have a meaning; their addresses tell them apart.
    struct Text
    {
        OvxStringViewT characters; ///< The text itself, kept as long as the process runs.
    };

    /// Gives the pooled text equal to `text`, adding it when it is not there; null for the empty text.
    [[nodiscard]] static const Text* Intern(OvxStringViewT text);
};

} // namespace Styles
