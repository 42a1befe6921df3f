#include "apps/workbench/StepNames.h"

#include "host/resources/Resources.h"

#include <algorithm>

namespace Workbench
{
namespace
{

using Framework::Resources::GetString;

OvxStringT NameSubject(const std::vector<RowPlace>& places)
{
    if (places.empty())
        return GetString(L"step.properties");
    const RowPlace& first = places.front();
    const OvxStringT title = GetString(first.panel->GetDescription().title);
    if (places.size() == 1 && first.row != nullptr)
        return OvxStringT::FormatMessageInserts(GetString(L"step.row"), {title, GetString(first.row->label)});
    const bool isOnePanel = std::all_of(places.begin(), places.end(),
                                        [&](const RowPlace& place) { return place.panel == first.panel; });
    return isOnePanel ? title : GetString(L"step.properties");
}

} // namespace

OvxStringT NameStep(OvxStringViewT patternKey, const std::vector<RowPlace>& places)
{
    return NameStep(patternKey, NameSubject(places));
}

OvxStringT NameStep(OvxStringViewT patternKey, const OvxStringT& subject)
{
    return OvxStringT::FormatMessageInserts(GetString(patternKey), {subject});
}

OvxStringT NameGroup()
{
    return GetString(L"step.group");
}

} // namespace Workbench
