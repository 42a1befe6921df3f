// Many writes as one change. On default styles the data source gathers them itself, in a style that the
// router in Writing fills while it is there; for other targets the style source holds the group.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/IStylesSource.h"
#include "module/StylesCommon.h"

#include <algorithm>
#include <utility>

using namespace Styles;

namespace
{

void SortAndRemoveRepeated(PropertyPaths& paths)
{
    std::sort(paths.begin(), paths.end());
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
}

/// `removed` is sorted.
void RemoveAll(PropertyPaths& paths, const PropertyPaths& removed)
{
    std::erase_if(paths, [&removed](const PropertyPath& path)
                  { return std::binary_search(removed.begin(), removed.end(), path); });
}

} // namespace

void BaseStylePropertiesDatasource::StartGroupModify()
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source == nullptr)
        return;
    if (!isDefaultStyles)
    {
        source->BeginGroup();
        return;
    }

    // The category is that of fills for every panel, and it decides where the group lands. Deliberate: it is
    // what listeners of the change are told.
    groupModifyStyle = std::make_unique<Style>(nullptr, FillStyleCategoryName);
    groupModifyPaths.clear();
    groupModifyOverridePaths.clear();
}

void BaseStylePropertiesDatasource::EndGroupModify(bool commit)
{
    if (groupModifyStyle == nullptr)
    {
        if (IStylesSource* source = StylesCommon::GetActiveStyleSource())
            source->EndGroup(commit);
        return;
    }
    if (!commit)
    {
        groupModifyStyle = nullptr;
        OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance().NotifyListeners(L"ObjectStyleChanged");
        return;
    }

    SortAndRemoveRepeated(groupModifyOverridePaths);
    SortAndRemoveRepeated(groupModifyPaths);
    RemoveAll(groupModifyOverridePaths, groupModifyPaths);

    // The lists are copied, because whoever is called may start the next group. The group is closed before it
    // is written, so that it is not gathered again, and after everything that may fail here.
    const PropertyPaths paths = groupModifyPaths;
    const PropertyPaths overridePaths = groupModifyOverridePaths;
    std::unique_ptr<Style> values = std::move(groupModifyStyle);
    ModifyStyles(paths, std::move(values), &overridePaths);
}
