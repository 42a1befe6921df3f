// The drop-down of presets, and adding and deleting them.

#include "tests/model/PlainDescription.h"
#include "tests/model/PlainPanel.h"

namespace LibraryModel
{

void PlainPanel::SelectNoPreset()
{
    if (!presetCategory.empty())
        currentPreset.text = ShownText("f5cefe53-8452-41c0-888b-b882ff5a4ba0");
    currentPreset.index = -1;
}

PlainPresetDialog* PlainPanel::FindDialog()
{
    PlainContext* current = host.ObjectPropertiesContext();
    const bool isThere = current != nullptr && host.FindPresets(*current) == PlainContext::Presets::Dialog;
    return isThere ? &dialog : nullptr;
}

PlainList PlainPanel::GetPresetList()
{
    if (presetCategory.empty())
        return {};
    PlainPresetDialog* home = FindDialog();
    if (home == nullptr)
        return {};
    PlainList& list = home->lists[presetCategory];
    if (!list.empty() || !host.HasSource())
        return list;

    const std::vector<std::string> names = host.GetPresetNames(presetCategory);
    list.resize(names.size());
    PlainPresetDialog::Number(list);
    std::vector<std::pair<std::string, PlainItem*>> namesAndItems;
    for (std::size_t i = 0; i < names.size(); ++i)
        namesAndItems.emplace_back(names[i], &list[i]);
    FillPresetItems(host, namesAndItems, 0, presetCategory);
    return list;
}

PlainItem PlainPanel::GetCurrentPreset()
{
    if (currentPreset == PlainItem())
        SelectNoPreset();
    return currentPreset;
}

void PlainPanel::SetCurrentPreset(const PlainItem& item)
{
    currentPreset = item;
    if (host.HasSource() && item.index != -1)
    {
        if (isDefaultStyles)
        {
            host.Record("source.ApplyPresetToStyles(" + item.text + ", " + presetCategory + ", " +
                        NamesOf(targetStyles) + ")");
        }
        else
        {
            std::vector<std::string> objects;
            for (const auto& [style, object] : objectStyles)
                objects.push_back(std::to_string(object));
            host.Record("source.ApplyPresetToObjects(" + item.text + ", " + presetCategory + ", [" +
                        Join(objects, ", ") + "])");
        }
    }
    Notify({"CurrentPreset", "DeletePresetEnabled"});
}

int PlainPanel::IsAddPresetEnabled()
{
    return styleName.empty() && !presetCategory.empty() ? 1 : 0;
}

void PlainPanel::OnAddPreset()
{
    const PlainStyle* target = GetTargetStyle(0);
    PlainPresetDialog* home = target != nullptr && target->owner != nullptr ? FindDialog() : nullptr;
    if (home != nullptr)
    {
        home->styleToSave.Assign(*target->owner);
        home->category = presetCategory;
        home->presetName =
            host.GetUnusedPresetName(presetCategory, ShownText("d7f0b1e3-1872-49eb-8b70-e6060b1c789d"));
        if (home->context != nullptr)
        {
            host.Record("context.GetDialogService()");
            if (home->context->hasDialogs)
                host.Record("dialogs.ShowDialog(0f6cfc84-8a1f-9182-4a02-21556f4ad8f8, " +
                            home->context->name + ")");
        }
    }
    Notify({"DeletePresetEnabled"});
}

void PlainPanel::OnDeletePreset()
{
    if (currentPreset.index != -1)
    {
        const std::string deleted = currentPreset.text;
        PlainPresetDialog* home = FindDialog();
        host.DeletePreset(presetCategory, deleted);
        if (home != nullptr)
        {
            PlainList& list = home->lists[presetCategory];
            for (std::size_t i = 0; i < list.size(); ++i)
            {
                if (list[i].text != deleted)
                    continue;
                list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
                PlainPresetDialog::Number(list);
                break;
            }
            home->Notify(presetCategory);
        }
    }
    SelectNoPreset();
    Notify({"CurrentPreset", "DeletePresetEnabled"});
}

} // namespace LibraryModel
