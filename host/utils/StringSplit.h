#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <vector>

namespace OvxUtils::String
{

/// Cuts `text` at every `separator` and gives the pieces in order.
///
/// Nothing is trimmed. With `keepEmptyPieces` false, pieces without a character are left out, so that an
/// empty text gives no pieces at all; with true, n separators give n + 1 pieces. `caseSensitive` false also
/// cuts at the other case of a letter used as separator.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::vector<OvxStringT>
Split(OvxStringViewT text, wchar_t separator, bool keepEmptyPieces, bool caseSensitive);

} // namespace OvxUtils::String
