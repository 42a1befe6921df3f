#include "apps/workbench/DrawingStyles.h"

#include "reference_host/document/DrawingObject.h"

namespace Workbench
{

Styles::StyleSheet* DrawingStyles::GetStyleSheet()
{
    return &drawing->GetStyleSheet();
}

Styles::StyleSheet* DrawingStyles::GetExternalStyleSheet(const OvxStringT& sheetName)
{
    return drawing->FindExternalSheet(sheetName);
}

std::vector<Styles::Style*> DrawingStyles::GetDefaultStyles()
{
    return {&drawing->GetDefaultStyle()};
}

bool DrawingStyles::IsHidden(const OvxStringT& styleName) const
{
    return drawing->IsHidden(styleName);
}

OvxStringT DrawingStyles::GetDisplayName(const OvxStringT& styleName) const
{
    return drawing->GetDisplayName(styleName);
}

Styles::Style* DrawingStyles::GetObjectStyle(std::size_t object)
{
    return reinterpret_cast<ReferenceHost::DrawingObject*>(object)->GetStyle();
}

ReferenceHost::History& DrawingStyles::GetHistory()
{
    return drawing->GetHistory();
}

Styles::Style* DrawingStyles::AddStyle(const Styles::PropertyKey& category, const OvxStringT& name)
{
    return drawing->AddStyle(category, name);
}

bool DrawingStyles::RenameStyle(const OvxStringT& name, const OvxStringT& newName)
{
    return drawing->RenameStyle(name, newName);
}

} // namespace Workbench
