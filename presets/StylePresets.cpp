// The data source of the add-preset dialog: the name, the style that becomes the preset, and the lists that
// all panels show.

#include "presets/StylePresets.h"

#include "datasource/PropertyRegistration.h"
#include "host/data_binding/IDataContext.h"
#include "host/resources/Resources.h"
#include "host/services/MessageMgr.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "host/style_model/StylePresetManager.h"
#include "module/Constants.h"
#include "module/StylesCommon.h"

#include <algorithm>
#include <utility>
#include <vector>

using Styles::StylePresetManager;

namespace
{

/// The question whether to replace the preset of that name.
constexpr OvxStringViewT kReplaceTextKey = L"cd4094d1-a5e1-4fb0-89e6-0c33c6f2b99f";

/// The buttons for yes and no with a question mark, and the answer yes, as message boxes have them.
constexpr int kYesNoQuestion = 36;
constexpr int kYes = 6;

/// The result by which a dialog is accepted.
constexpr int kAccepted = 2;

StylePresetManager& PresetManager()
{
    return StylesCommon::StylesApp().GetStylePresetManager();
}

} // namespace

void StylePresets::FillDataSourceMap()
{
    RegisterProperty<OvxStringT>(*this, L"AddPresetName", {this, &StylePresets::GetAddPresetName},
                                 {this, &StylePresets::SetAddPresetName});
    RegisterCommand(*this, L"OnAddPresetOk", {this, &StylePresets::OnAddPresetOk});
    RegisterProperty<bool>(*this, L"AddPresetOkEnabled", {this, &StylePresets::IsAddPresetOkEnabled});
    RegisterCommand(*this, L"OnAddPresetCancel", {this, &StylePresets::DoNothing});
    RegisterCommand(*this, L"DimensionPresets", {this, &StylePresets::DoNothing});
    RegisterCommand(*this, L"CalloutPresets", {this, &StylePresets::DoNothing});
}

void StylePresets::SetAddPresetName(const OvxStringT& name)
{
    presetName = name;
    UpdateListeners(L"AddPresetOkEnabled");
}

void StylePresets::Prepare(const Styles::Style& style, const OvxStringT& category,
                           const OvxStringT& proposedName)
{
    // First all copies: the fields belong together.
    auto styleCopy = std::make_unique<Styles::Style>(style);
    OvxStringT categoryCopy = category;
    OvxStringT nameCopy = proposedName;
    styleToSave = std::move(styleCopy);
    categoryName = std::move(categoryCopy);
    presetName = std::move(nameCopy);
}

void StylePresets::OnAddPresetOk()
{
    if (!MayKeepPreset())
        return;
    if (StylesCommon::GetActiveStyleSource() != nullptr)
    {
        PresetManager().AddPreset(categoryName, presetName, *styleToSave, /*replace=*/true);
        BringCachedListInLine();
    }
    UpdateListeners(categoryName);
    CloseDialog();
}

void StylePresets::BringCachedListInLine()
{
    try
    {
        InsertIntoCachedList();
    }
    catch (...)
    {
        // A list without the preset would be taken for the whole one ever after; an empty one is filled.
        presetLists[categoryName] = WCmnUI_List();
        throw;
    }
}

bool StylePresets::MayKeepPreset() const
{
    if (!PresetManager().DoesPresetNameExist(categoryName, presetName))
        return true;
    const OvxStringT question = Framework::Resources::GetString(kReplaceTextKey);
    return MessageMgr::ShowConfirmation(question, kYesNoQuestion) == kYes;
}

/// Only a list that was complete before, with or without the new preset, can be brought in line; any other is
/// left as it is and filled by whoever finds it empty.
void StylePresets::InsertIntoCachedList()
{
    const std::vector<OvxStringT> names = PresetManager().GetPresetNames(categoryName);
    WCmnUI_List& list = presetLists[categoryName];
    const bool wasReplaced = list.GetCount() == names.size();
    if (!wasReplaced && list.GetCount() + 1 != names.size())
        return;
    const auto found = std::find(names.begin(), names.end(), presetName);
    if (found == names.end())
        return;

    const auto position = static_cast<std::size_t>(found - names.begin());
    WCmnUI_ListItem item;
    StylesCommon::GetActiveStyleSource()->FillPresetItems({{presetName, &item, position}}, categoryName);
    list.InsertItem(position, item);
    if (wasReplaced)
        list.RemoveItem(position + 1);
}

void StylePresets::CloseDialog()
{
    IDataContext* dataContext = GetDataContext();
    IDialogService* dialogs = dataContext == nullptr ? nullptr : dataContext->GetDialogService();
    if (dialogs != nullptr)
        dialogs->CloseDialog(kAddPresetDialogKey, kAccepted, 0);
}
