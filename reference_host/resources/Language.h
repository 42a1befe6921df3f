#pragma once

#include "host/Export.h"

#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// The languages that there are texts in, English first.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::vector<std::string> GetLanguages();

/// The language in force; English at first.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::string GetLanguage();

/// Puts a language in force for all texts that are fetched from now on. One without a catalogue changes
/// nothing.
///
/// @returns whether there is a catalogue of that language.
STYLEPROPERTIES_HOST_API bool SetLanguage(std::string_view language);

/// The language for a locale name such as "de_AT.UTF-8": the one whose catalogue it begins with, else
/// English.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::string FindLanguageFor(std::string_view locale);

} // namespace ReferenceHost
