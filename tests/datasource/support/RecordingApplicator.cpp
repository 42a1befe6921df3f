#include "tests/datasource/support/RecordingApplicator.h"

#include "datasource/BaseStylePropertiesDatasource.h"
#include "tests/datasource/support/Description.h"

void RecordingApplicator::AttachDataSource(int id, BaseStylePropertiesDatasource* dataSource)
{
    log.Add("applicator.AttachDataSource(" + std::to_string(id) + ", " + log.NameOf(dataSource) + ")");
}

void RecordingApplicator::ModifyStyles(int id, const Styles::PropertyPaths& paths, Styles::Style* changeStyle,
                                       const Styles::PropertyPaths* overridePaths, bool toDefaultStyles)
{
    log.Add("applicator.ModifyStyles(" + std::to_string(id) + ", paths=" + Describe(paths) +
            ", changeStyle=" + Describe(changeStyle) + ", overridePaths=" + Describe(overridePaths) +
            ", toDefaultStyles=" + DescribeFlag(toDefaultStyles) + ")");
}

Styles::PropertyPath RecordingApplicator::GetTargetPath(int id)
{
    log.Add("applicator.GetTargetPath(" + std::to_string(id) + ")");
    return targetPath;
}
