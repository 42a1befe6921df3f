#pragma once

#include "host/utils/OvxStringT.h"

#include <string>
#include <string_view>

namespace ReferenceHost
{

/// A text in UTF-8 in which only characters stand that every XML file can hold: "%" and the others are
/// written as "%" and six hexadecimal digits.
[[nodiscard]] std::string ToPresetText(const OvxStringT& text);

/// The text that ToPresetText() was given; what is no such sequence stays as it is.
[[nodiscard]] OvxStringT FromPresetText(std::string_view text);

} // namespace ReferenceHost
