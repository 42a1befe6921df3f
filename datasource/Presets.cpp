// The presets of the panel's category: listing, selecting, adding and deleting. Keeps the selected preset;
// the lists lie in the preset data source, which all panels share, and the presets with the host's manager.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "datasource/Rollback.h"
#include "host/data_binding/IDataContext.h"
#include "host/resources/Resources.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "host/style_model/PresetListEntry.h"
#include "host/style_model/StylePresetManager.h"
#include "module/Constants.h"
#include "module/StylesCommon.h"
#include "presets/StylePresets.h"

using namespace Styles;

namespace
{

/// What a proposed preset name is made from.
constexpr OvxStringViewT kNewPresetTextKey = L"d7f0b1e3-1872-49eb-8b70-e6060b1c789d";

StylePresetManager& PresetManager()
{
    return StylesCommon::StylesApp().GetStylePresetManager();
}

void FillList(WCmnUI_List& list, IStylesSource& source, const OvxStringT& category)
{
    try
    {
        std::vector<PresetListEntry> entries;
        for (const OvxStringT& name : PresetManager().GetPresetNames(category))
            entries.push_back({name, list.AddItem(), entries.size()});
        source.FillPresetItems(entries, category);
    }
    catch (...)
    {
        // What came half way would pass for the whole list ever after.
        list = WCmnUI_List();
        throw;
    }
}

void RemoveFirst(WCmnUI_List& list, const OvxStringT& text)
{
    for (std::size_t position = 0; position < list.GetCount(); ++position)
    {
        if (list.GetItem(position)->GetText() == text)
        {
            list.RemoveItem(position);
            return;
        }
    }
}

/// Deletes a preset with its entry in the list of its category; `presets` may be null.
void DeletePreset(StylePresets* presets, const OvxStringT& category, const OvxStringT& name)
{
    WCmnUI_List* list = presets == nullptr ? nullptr : &presets->GetPresetList(category);
    PresetManager().DeletePreset(category, name);
    if (list != nullptr)
        RemoveFirst(*list, name);
}

void ShowAddPresetDialog(const StylePresets& presets)
{
    IDataContext* dataContext = presets.GetDataContext();
    IDialogService* dialogs = dataContext == nullptr ? nullptr : dataContext->GetDialogService();
    if (dialogs != nullptr)
        dialogs->ShowDialog(kAddPresetDialogKey, dataContext);
}

} // namespace

OvxStringT BaseStylePropertiesDatasource::PresetCategoryName() const
{
    return {};
}

// NOLINTNEXTLINE(readability-make-member-function-const): fills the list that all panels share
WCmnUI_List BaseStylePropertiesDatasource::GetPresetList()
{
    const OvxStringT category = PresetCategoryName();
    StylePresets* presets = category.empty() ? nullptr : FindStylePresets();
    if (presets == nullptr)
        return {};

    WCmnUI_List& list = presets->GetPresetList(category);
    IStylesSource* source = list.GetCount() > 0 ? nullptr : StylesCommon::GetActiveStyleSource();
    if (source != nullptr)
        FillList(list, *source, category);
    return list;
}

WCmnUI_ListItem BaseStylePropertiesDatasource::GetCurrentPreset()
{
    if (currentPreset == WCmnUI_ListItem())
        SelectNoPreset();
    return currentPreset;
}

void BaseStylePropertiesDatasource::SetCurrentPreset(const WCmnUI_ListItem& item)
{
    Rollback before(currentPreset);
    currentPreset = item;
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source != nullptr && currentPreset.GetIndex() != -1)
        ApplyCurrentPreset(*source);
    before.Keep();
    UpdateListeners(L"CurrentPreset,DeletePresetEnabled");
}

void BaseStylePropertiesDatasource::ApplyCurrentPreset(IStylesSource& source) const
{
    const OvxStringT name = currentPreset.GetText();
    if (isDefaultStyles)
    {
        source.ApplyPresetToStyles(name, PresetCategoryName(), GetTargetStyles());
        return;
    }
    std::vector<std::size_t> objects;
    objects.reserve(objectStyles.size());
    for (const auto& [style, object] : objectStyles)
        objects.push_back(object);
    source.ApplyPresetToObjects(name, PresetCategoryName(), objects);
}

int BaseStylePropertiesDatasource::IsAddPresetEnabled() const
{
    return styleName.empty() && !PresetCategoryName().empty() ? 1 : 0;
}

void BaseStylePropertiesDatasource::OnAddPreset()
{
    const Style* first = GetTargetStyle(0);
    const Style* owner = first == nullptr ? nullptr : first->GetOwner();
    StylePresets* presets = owner == nullptr ? nullptr : FindStylePresets();
    if (presets != nullptr)
    {
        const OvxStringT category = PresetCategoryName();
        const OvxStringT base = Framework::Resources::GetString(kNewPresetTextKey);
        presets->Prepare(*owner, category, PresetManager().GetUnusedPresetName(category, base));
        ShowAddPresetDialog(*presets);
    }
    UpdateListeners(L"DeletePresetEnabled");
}

int BaseStylePropertiesDatasource::IsDeletePresetEnabled() const
{
    return currentPreset.GetIndex() != -1 ? 1 : 0;
}

void BaseStylePropertiesDatasource::OnDeletePreset()
{
    bool isDeleted = false;
    try
    {
        if (currentPreset.GetIndex() != -1)
        {
            const OvxStringT name = currentPreset.GetText();
            StylePresets* presets = FindStylePresets();
            const OvxStringT category = PresetCategoryName();
            DeletePreset(presets, category, name);
            isDeleted = true;
            if (presets != nullptr)
                presets->UpdateListeners(category);
        }
        SelectNoPreset();
    }
    catch (...)
    {
        // What is gone stays selected no longer, whatever a listener does.
        if (isDeleted)
            currentPreset = WCmnUI_ListItem();
        throw;
    }
    UpdateListeners(L"CurrentPreset,DeletePresetEnabled");
}
