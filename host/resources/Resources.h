#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

namespace Framework::Resources
{

/// The text of a key, in the language in force. A key without a text gives the key itself.
[[nodiscard]] STYLEPROPERTIES_HOST_API OvxStringT GetString(const OvxStringT& key);

} // namespace Framework::Resources
