#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <string>

namespace ReferenceHost
{

/// A name for a file or folder that stands for any text, on every file system: lower-case letters, digits and
/// hyphens taken from the text for people to recognise it by, and a checksum of the whole text that tells
/// texts apart which look alike. Never empty, never a path, at most 60 bytes.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::string MakePresetFileName(const OvxStringT& text);

} // namespace ReferenceHost
