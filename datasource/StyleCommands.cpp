// Revert, apply to parent, break a link, create and edit styles. No command is enabled yet, and none does
// anything.

#include "datasource/BaseStylePropertiesDatasource.h"

void BaseStylePropertiesDatasource::OnRevertToParent()
{
}

int BaseStylePropertiesDatasource::GetBreakColorResourceEnable() const
{
    return 0;
}

void BaseStylePropertiesDatasource::OnBreakColorResource()
{
}

int BaseStylePropertiesDatasource::GetApplyToParentEnable() const
{
    return 0;
}

void BaseStylePropertiesDatasource::OnApplyToParent()
{
}

int BaseStylePropertiesDatasource::GetCreateStyleFromEnable() const
{
    return 0;
}

void BaseStylePropertiesDatasource::OnCreateStyleFrom()
{
}

int BaseStylePropertiesDatasource::GetEditStyleEnable() const
{
    return 0;
}

void BaseStylePropertiesDatasource::OnEditStyle()
{
}

OvxStringT BaseStylePropertiesDatasource::GetRevertToMenuString() const
{
    return {};
}

OvxStringT BaseStylePropertiesDatasource::GetApplyToMenuString() const
{
    return {};
}

OvxStringT BaseStylePropertiesDatasource::GetEditStyleMenuString() const
{
    return {};
}

void BaseStylePropertiesDatasource::SetNoParent(IStylesSource* /*source*/, Styles::Style* /*style*/) const
{
}
