#include "reference_host/services/PresetManager.h"

#include "host/services/ConfigurationFolders.h"
#include "host/utils/Utf8.h"
#include "reference_host/preset_store/PresetFileName.h"
#include "reference_host/preset_store/PresetFolder.h"
#include "reference_host/services/NativePaths.h"

namespace ReferenceHost
{

namespace
{

constexpr auto kLocation = Styles::PresetLocation::CustomConfiguration;

} // namespace

PresetManager::PresetManager() = default;

PresetManager::~PresetManager() = default;

std::unique_ptr<Styles::Style> PresetManager::LoadPreset(const OvxStringT& category, const OvxStringT& name)
{
    const OvxStringT directory = GetCustomConfigurationDirectory();
    if (directory.empty())
        return nullptr;
    return PresetFolder(PathFromText(directory) / PathFromText(GetPresetFolder(kLocation, category)))
        .Load(name);
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
