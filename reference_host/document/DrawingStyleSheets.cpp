// What a drawing tells of styles whether they are its own or of a sheet outside it.

#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingData.h"

namespace ReferenceHost
{

namespace
{

/// What people see of a named style; null for a name that means none.
const StyleAppearance* FindAppearance(const DrawingData& data, const OvxStringT& styleName)
{
    const bool isOwn = data.sheet.GetStyle(styleName) != nullptr;
    const ExternalSheet* const holder = isOwn ? nullptr : data.sheets.FindHolder(styleName);
    const StyleAppearances& appearances = holder == nullptr ? data.appearances : holder->data->appearances;
    const auto found = appearances.find(styleName);
    return found == appearances.end() ? nullptr : &found->second;
}

} // namespace

OvxStringT Drawing::GetDisplayName(const OvxStringT& styleName) const
{
    const StyleAppearance* const appearance = FindAppearance(*data, styleName);
    return appearance == nullptr || appearance->displayName.empty() ? styleName : appearance->displayName;
}

bool Drawing::IsHidden(const OvxStringT& styleName) const
{
    const StyleAppearance* const appearance = FindAppearance(*data, styleName);
    return appearance != nullptr && appearance->isHidden;
}

std::vector<OvxStringT> Drawing::GetExternalSheetNames() const
{
    std::vector<OvxStringT> names;
    for (const std::unique_ptr<ExternalSheet>& sheet : data->sheets.GetAll())
        names.push_back(sheet->link.name);
    return names;
}

NamedStyleSheet* Drawing::FindExternalSheet(const OvxStringT& sheetName) const
{
    const ExternalSheet* const sheet = data->sheets.Find(sheetName);
    return sheet == nullptr ? nullptr : &sheet->data->sheet;
}

Styles::Style* Drawing::FindStyle(const OvxStringT& styleName) const
{
    if (Styles::Style* const own = data->sheet.GetStyle(styleName))
        return own;
    const ExternalSheet* const holder = data->sheets.FindHolder(styleName);
    return holder == nullptr ? nullptr : holder->data->sheet.GetStyle(styleName);
}

OvxStringT Drawing::FindStyleName(const Styles::Style* style) const
{
    if (style == nullptr || !style->IsExternal())
        return data->sheet.GetStyleName(style);
    const NamedStyleSheet* const sheet = FindExternalSheet(style->GetExternalStyleSheetName());
    return sheet == nullptr ? OvxStringT() : sheet->GetStyleName(style);
}

} // namespace ReferenceHost
