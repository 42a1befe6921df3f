#include "reference_host/services/PresetManager.h"

#include "host/services/ConfigurationFolders.h"

namespace ReferenceHost
{

PresetManager::PresetManager() = default;

PresetManager::~PresetManager() = default;

OvxStringT PresetManager::GetPresetFolder(Styles::PresetLocation /*location*/, OvxStringT /*category*/)
{
    return {};
}

OvxStringT PresetManager::GetPresetFileName(Styles::PresetLocation /*location*/, OvxStringT /*name*/)
{
    return {};
}

int PresetManager::GetPresetFormat()
{
    return 0;
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
