// How panels find the one preset data source, and how a list property of a category is added to it.

#include "datasource/CurrentDataContext.h"
#include "host/data_binding/IDataContext.h"
#include "host/data_binding/TypeName.h"
#include "host/utils/Utf8.h"
#include "presets/StylePresets.h"
#include "presets/WDynamicProperty.h"

#include <memory>

StylePresets* FindStylePresets()
{
    static const OvxStringT key = OvxUtils::FromUtf8(TypeName<StylePresets>());
    IDataContext* dataContext = FindCurrentDataContext().value_or(nullptr);
    return dataContext == nullptr ? nullptr : dynamic_cast<StylePresets*>(dataContext->GetDataSource(key));
}

void AttachPresetList(const OvxStringT& category)
{
    StylePresets* presets = category.empty() ? nullptr : FindStylePresets();
    if (presets == nullptr || presets->FindDynamicProperty(category) != nullptr)
        return;
    presets->AddDynamicProperty(
        std::make_unique<WDynamicProperty<WCmnUI_List>>(*presets, &StylePresets::CopyPresetList, category));
}
