#pragma once

#include "host/Export.h"

#include <functional>
#include <string>

namespace ReferenceHost
{

/// Hears of presets that cannot be used: one line in UTF-8 each, with the file and what is wrong.
using PresetReporter = std::function<void(const std::string& line)>;

/// Puts a reporter in place; with an empty one, as at first, nobody hears.
///
/// @returns the reporter that was in place.
STYLEPROPERTIES_HOST_API PresetReporter SetPresetReporter(PresetReporter reporter);

/// Tells the reporter in place.
void ReportPresetProblem(const std::string& line);

} // namespace ReferenceHost
