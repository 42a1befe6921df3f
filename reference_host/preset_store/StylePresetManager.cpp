// Presets in folders below the person's configuration; the hooks say which.

#include "host/style_model/StylePresetManager.h"

#include "host/utils/Utf8.h"
#include "reference_host/preset_store/PresetFolder.h"
#include "reference_host/services/NativePaths.h"

#include <algorithm>
#include <optional>

namespace Styles
{

namespace
{

using ReferenceHost::PathFromText;
using ReferenceHost::PresetFolder;

/// The format of the files written here; with any other, nothing is kept.
constexpr int kPresetFormat = 1;

constexpr PresetLocation kLocation = PresetLocation::CustomConfiguration;

/// None where the hooks name no place.
std::optional<PresetFolder> FolderAt(int format, const OvxStringT& directory, const OvxStringT& folder)
{
    if (format != kPresetFormat || directory.empty() || folder.empty())
        return std::nullopt;
    return PresetFolder(PathFromText(directory) / PathFromText(folder));
}

} // namespace

StylePresetManager::StylePresetManager() = default;
StylePresetManager::~StylePresetManager() = default;

std::vector<OvxStringT> StylePresetManager::GetPresetNames(const OvxStringT& category)
{
    const auto folder =
        FolderAt(GetPresetFormat(), GetCustomConfigurationDirectory(), GetPresetFolder(kLocation, category));
    return folder ? folder->ListNames() : std::vector<OvxStringT>();
}

bool StylePresetManager::DoesPresetNameExist(const OvxStringT& category, const OvxStringT& name)
{
    const auto folder =
        FolderAt(GetPresetFormat(), GetCustomConfigurationDirectory(), GetPresetFolder(kLocation, category));
    return folder && folder->Contains(name);
}

bool StylePresetManager::AddPreset(const OvxStringT& category, const OvxStringT& name, const Style& style,
                                   bool replace)
{
    const OvxStringT fileName = GetPresetFileName(kLocation, name);
    const auto folder =
        FolderAt(GetPresetFormat(), GetCustomConfigurationDirectory(), GetPresetFolder(kLocation, category));
    return folder && !fileName.empty() && !name.empty() &&
           folder->Add(name, OvxUtils::ToUtf8(fileName), style, replace);
}

bool StylePresetManager::DeletePreset(const OvxStringT& category, const OvxStringT& name)
{
    const auto folder =
        FolderAt(GetPresetFormat(), GetCustomConfigurationDirectory(), GetPresetFolder(kLocation, category));
    return folder && folder->Remove(name);
}

OvxStringT StylePresetManager::GetUnusedPresetName(const OvxStringT& category, const OvxStringT& base)
{
    const std::vector<OvxStringT> names = GetPresetNames(category);
    OvxStringT name = base;
    for (int number = 2; std::ranges::find(names, name) != names.end(); ++number)
        name = base + OvxStringT::Format(L" %d", number);
    return name;
}

} // namespace Styles
