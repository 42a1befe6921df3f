#include "reference_host/services/PresetManager.h"

#include "host/services/ConfigurationFolders.h"
#include "host/utils/Utf8.h"
#include "reference_host/preset_store/PresetFileName.h"
#include "reference_host/preset_store/PresetFolder.h"
#include "reference_host/services/NativePaths.h"

#include <optional>

namespace ReferenceHost
{

namespace
{

constexpr auto kLocation = Styles::PresetLocation::CustomConfiguration;

/// None where nothing says where configuration lies.
std::optional<PresetFolder> FolderAt(const OvxStringT& directory, const OvxStringT& folder)
{
    if (directory.empty())
        return std::nullopt;
    return PresetFolder(PathFromText(directory) / PathFromText(folder));
}

} // namespace

PresetManager::PresetManager() = default;

PresetManager::~PresetManager() = default;

std::unique_ptr<Styles::Style> PresetManager::LoadPreset(const OvxStringT& category, const OvxStringT& name)
{
    const auto folder = FolderAt(GetCustomConfigurationDirectory(), GetPresetFolder(kLocation, category));
    return folder ? folder->Load(name) : nullptr;
}

std::map<OvxStringT, std::unique_ptr<Styles::Style>> PresetManager::LoadPresets(const OvxStringT& category)
{
    const auto folder = FolderAt(GetCustomConfigurationDirectory(), GetPresetFolder(kLocation, category));
    return folder ? folder->LoadAll() : std::map<OvxStringT, std::unique_ptr<Styles::Style>>();
}

OvxStringT PresetManager::GetPresetFolder(Styles::PresetLocation location, OvxStringT category)
{
    if (location != kLocation)
        return {};
    return L"presets/" + OvxUtils::FromUtf8(MakePresetFileName(category));
}

OvxStringT PresetManager::GetPresetFileName(Styles::PresetLocation location, OvxStringT name)
{
    return location == kLocation ? OvxUtils::FromUtf8(MakePresetFileName(name)) : OvxStringT();
}

int PresetManager::GetPresetFormat()
{
    return 1;
}

OvxStringT PresetManager::GetCustomConfigurationDirectory()
{
    return INIGetCustomDir();
}

OvxStringT PresetManager::GetUserDocumentsDirectory()
{
    return GetUserDocumentsOrvexSuiteDir();
}

} // namespace ReferenceHost
