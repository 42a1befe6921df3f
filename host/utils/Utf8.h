#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <string>
#include <string_view>

namespace OvxUtils
{

/// Writes wide text as UTF-8, for files, terminals and windows.
///
/// A lone surrogate or a value beyond U+10FFFF becomes U+FFFD.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::string ToUtf8(OvxStringViewT text);

/// Reads UTF-8 into wide text.
///
/// Each byte sequence that is not valid becomes one U+FFFD; who must refuse such input tests it beforehand.
[[nodiscard]] STYLEPROPERTIES_HOST_API OvxStringT FromUtf8(std::string_view utf8);

} // namespace OvxUtils
