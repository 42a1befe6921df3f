#include "reference_host/preset_store/PresetReports.h"

#include <utility>

namespace ReferenceHost
{

namespace
{

PresetReporter& Reporter()
{
    static PresetReporter reporter;
    return reporter;
}

} // namespace

PresetReporter SetPresetReporter(PresetReporter reporter)
{
    return std::exchange(Reporter(), std::move(reporter));
}

void ReportPresetProblem(PresetProblem problem, const std::string& line)
{
    if (Reporter())
        Reporter()(problem, line);
}

} // namespace ReferenceHost
