#pragma once

#include "host/Export.h"

#include <functional>
#include <string>

namespace ReferenceHost
{

/// What became of a preset that there is something to tell of.
enum class PresetProblem
{
    Skipped,   ///< It cannot be used, and was passed over.
    NotChanged ///< It could not be kept or dropped.
};

/// Hears of presets with problems: one line in UTF-8 each, with the file and what is wrong.
using PresetReporter = std::function<void(PresetProblem problem, const std::string& line)>;

/// Puts a reporter in place; with an empty one, as at first, nobody hears.
///
/// @returns the reporter that was in place.
STYLEPROPERTIES_HOST_API PresetReporter SetPresetReporter(PresetReporter reporter);

/// Tells the reporter in place.
void ReportPresetProblem(PresetProblem problem, const std::string& line);

} // namespace ReferenceHost
