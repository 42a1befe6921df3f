#pragma once

#include "host/utils/OvxStringT.h"

#include <string>
#include <string_view>

namespace ReferenceHost
{

/// Decodes a name that was made fit for XML: "Mid_20_One" is "Mid One", and "_hex_" in general the character
/// with that code.
///
/// Programs encode only what a name of XML cannot hold, and the underscore itself. Where "_hex_" stands for
/// anything else (a letter, a digit inside the name, a control character) it is part of the name as it is:
/// "box_a_1" stays.
[[nodiscard]] OvxStringT DecodeStyleName(std::string_view encoded);

/// Makes a name fit for XML, so that DecodeStyleName() gives it back: "Mid One" is "Mid_20_One".
[[nodiscard]] std::string EncodeStyleName(const OvxStringT& name);

/// Tells whether a file can hold a name: not one with a control character, nor with anything else that XML
/// does not allow or that is no character.
[[nodiscard]] bool CanBeSavedAsName(const OvxStringT& name);

} // namespace ReferenceHost
