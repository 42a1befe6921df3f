#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

namespace Styles
{

/// The process-wide pool that keeps one copy of each text used as a key.
///
/// Texts are never given back: their addresses are the identities of keys for as long as the process runs.
/// Safe from any thread and from any static initialiser.
class STYLEPROPERTIES_HOST_API StringPool
{
public:
    /// Gives the pooled text equal to `text`, adding it when it is not there; null for the empty text.
    [[nodiscard]] static const OvxStringT* Intern(OvxStringViewT text);
};

} // namespace Styles
