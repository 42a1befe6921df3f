// The presets of the panel's category. None are offered yet.

#include "datasource/BaseStylePropertiesDatasource.h"

OvxStringT BaseStylePropertiesDatasource::PresetCategoryName() const
{
    return {};
}

WCmnUI_List BaseStylePropertiesDatasource::GetPresetList()
{
    return {};
}

WCmnUI_ListItem BaseStylePropertiesDatasource::GetCurrentPreset()
{
    return currentPreset;
}

void BaseStylePropertiesDatasource::SetCurrentPreset(const WCmnUI_ListItem& /*item*/)
{
}

int BaseStylePropertiesDatasource::IsAddPresetEnabled() const
{
    return 0;
}

void BaseStylePropertiesDatasource::OnAddPreset()
{
}

int BaseStylePropertiesDatasource::IsDeletePresetEnabled() const
{
    return 0;
}

void BaseStylePropertiesDatasource::OnDeletePreset()
{
}
