#pragma once

#include "host/utils/OvxStringT.h"

#include <string>
#include <vector>

namespace Workbench
{

/// A text between double quotes, in UTF-8, for errors.
[[nodiscard]] std::string Quoted(OvxStringViewT text);

/// The texts between double quotes, in order and joined by commas. Of many, the first few, and how many more
/// there are.
[[nodiscard]] std::string QuotedList(const std::vector<OvxStringT>& texts);

} // namespace Workbench
