#include "apps/workbench/DrawingStyles.h"

namespace Workbench
{

Styles::StyleSheet* DrawingStyles::GetStyleSheet()
{
    return &drawing->GetStyleSheet();
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

} // namespace Workbench
