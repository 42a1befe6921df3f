#include "tests/model/PlainPresetDialog.h"

#include "tests/model/PlainDescription.h"

#include <algorithm>

namespace LibraryModel
{

void FillPresetItems(PlainHost& host, const std::vector<std::pair<std::string, PlainItem*>>& namesAndItems,
                     std::size_t firstPosition, const std::string& category)
{
    std::vector<std::string> told;
    std::size_t position = firstPosition;
    for (const auto& [name, item] : namesAndItems)
    {
        told.push_back(std::to_string(position) + ": " + name);
        if (host.fillsPresetItems)
            *item = {name, static_cast<int>(position)};
        ++position;
    }
    host.Record("source.FillPresetItems([" + Join(told, ", ") + "], " + category + ")");
}

void PlainPresetDialog::Number(PlainList& list)
{
    for (std::size_t position = 0; position < list.size(); ++position)
        list[position].index = static_cast<int>(position);
}

void PlainPresetDialog::Notify(const std::string& name)
{
    if (!name.empty())
        host.Record("presets " + name);
}

void PlainPresetDialog::SetName(const std::string& name)
{
    presetName = name;
    Notify("AddPresetOkEnabled");
}

void PlainPresetDialog::OnOk()
{
    if (host.DoesPresetNameExist(category, presetName))
    {
        if (!host.hasUserInterface)
            return;
        host.Record("confirm(" + ShownText("cd4094d1-a5e1-4fb0-89e6-0c33c6f2b99f") + ", 36)");
        if (host.answer != 6)
            return;
    }
    if (host.HasSource())
    {
        host.AddPreset(category, presetName);
        InsertIntoList();
    }
    Notify(category);
    if (context == nullptr)
        return;
    host.Record("context.GetDialogService()");
    if (context->hasDialogs)
        host.Record("dialogs.CloseDialog(0f6cfc84-8a1f-9182-4a02-21556f4ad8f8, 2, 0)");
}

void PlainPresetDialog::InsertIntoList()
{
    const std::vector<std::string> names = host.GetPresetNames(category);
    PlainList& list = lists[category];
    const bool isReplaced = list.size() == names.size();
    if (!isReplaced && list.size() + 1 != names.size())
        return;
    const auto found = std::ranges::find(names, presetName);
    if (found == names.end())
        return;

    const auto position = found - names.begin();
    PlainItem item;
    FillPresetItems(host, {{presetName, &item}}, static_cast<std::size_t>(position), category);
    list.insert(list.begin() + position, item);
    if (isReplaced)
        list.erase(list.begin() + position + 1);
    Number(list);
}

} // namespace LibraryModel
