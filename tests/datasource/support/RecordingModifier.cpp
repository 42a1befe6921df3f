#include "tests/datasource/support/RecordingModifier.h"

#include "tests/datasource/support/Description.h"

#include <set>

namespace
{

/// "{box: 3}", ordered by the names of the styles.
std::string DescribeObjects(const CallLog& log, const std::map<Styles::Style*, std::size_t>& objects)
{
    std::set<std::string> entries;
    for (const auto& [style, object] : objects)
        entries.insert(log.NameOfStyle(style) + ": " + std::to_string(object));

    std::string joined;
    for (const std::string& entry : entries)
        joined += (joined.empty() ? "" : ", ") + entry;
    return "{" + joined + "}";
}

} // namespace

void RecordingModifier::Begin()
{
    log.Add("modifier.Begin()");
}

void RecordingModifier::End()
{
    log.Add("modifier.End()");
}

void RecordingModifier::Modify(const std::vector<Styles::Style*>& targets,
                               const std::map<Styles::Style*, std::size_t>& objects,
                               const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> changeStyle,
                               const Styles::PropertyPaths& overridePaths, bool reserved, bool bound,
                               Styles::IModifyStyleOverrides* transactionOverrides)
{
    const RecordedChange& change = changes.emplace_back(
        RecordedChange{log.NamesOfStyles(targets), DescribeObjects(log, objects), Describe(paths),
                       Describe(changeStyle.get()), Describe(overridePaths), reserved, bound,
                       log.NameOf(transactionOverrides)});
    log.Add("modifier.Modify(targets=" + change.targets + ", objects=" + change.objects +
            ", paths=" + change.paths + ", changeStyle=" + change.changeStyle +
            ", overridePaths=" + change.overridePaths + ", reserved=" + DescribeFlag(reserved) +
            ", bound=" + DescribeFlag(bound) + ", transactionOverrides=" + change.transactionOverrides + ")");
}
