#include "tests/datasource/support/GroupTest.h"

#include <algorithm>

using namespace Styles;
using OvxUtils::Any;

GroupTest::GroupTest()
{
    source.defaultStyles = {&defaults};
    Target(panel, {&defaults}, /*isDefault=*/true);
    log.Clear();
}

void GroupTest::WriteValue(const wchar_t* key, int value)
{
    panel.WriteTarget(Key(key), Any(value), nullptr, nullptr);
}

void GroupTest::WriteBoth(const PropertyPaths& paths, const PropertyPaths& overridePaths)
{
    auto change = std::make_unique<Style>(nullptr, FillStyleCategoryName);
    for (const PropertyPaths* list : {&paths, &overridePaths})
    {
        for (const PropertyPath& path : *list)
            change->SetPathProperty(path, Any(9));
    }
    panel.ModifyStyles(paths, std::move(change), &overridePaths);
}

std::vector<std::string> GroupTest::Commit()
{
    log.Clear();
    panel.EndGroupModify(true);
    return log.LinesOf({"panel.ModifyStyles"});
}

PropertyPaths Sorted(PropertyPaths paths)
{
    std::sort(paths.begin(), paths.end());
    return paths;
}
