// Which other data sources this one is tied to. The names that listeners are told of stand with the
// operations that change them; writes that reach siblings stand in Writing, the merging of their targets in
// Targets.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/style_model/IStylesSource.h"
#include "module/StylesCommon.h"

void BaseStylePropertiesDatasource::RegisterSiblingDS(BaseStylePropertiesDatasource* sibling)
{
    siblings.push_back({sibling, {}, false});
}

void BaseStylePropertiesDatasource::UnregisterSiblingDS(BaseStylePropertiesDatasource* sibling)
{
    std::erase_if(siblings, [sibling](const SiblingEntry& entry) { return entry.sibling == sibling; });
}

bool BaseStylePropertiesDatasource::ShouldIgnoreCharacterStyleSiblings() const
{
    if (siblings.empty())
        return false;

    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    return source != nullptr && source->ShouldIgnoreCharacterStyleSiblings();
}

// A data source that is registered with itself would append to what it iterates, and a null one has nothing
// to give.
bool BaseStylePropertiesDatasource::TakesPartAsSibling(const BaseStylePropertiesDatasource* sibling) const
{
    return sibling != nullptr && sibling != this && !sibling->IsObjectPropertiesContext() &&
           !sibling->AreTargetsDefaultStyles();
}

void BaseStylePropertiesDatasource::OnPresetsListUpdated()
{
    UpdateListeners(L"PresetList");
}
