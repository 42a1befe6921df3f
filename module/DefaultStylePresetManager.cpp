// The answers of a preset manager that keeps nothing.

#include "module/DefaultStylePresetManager.h"

#include "host/services/ConfigurationFolders.h"

OvxStringT DefaultStylePresetManager::GetPresetFolder(Styles::PresetLocation /*location*/,
                                                      OvxStringT /*category*/)
{
    return {};
}

OvxStringT DefaultStylePresetManager::GetPresetFileName(Styles::PresetLocation /*location*/,
                                                        OvxStringT /*name*/)
{
    return {};
}

int DefaultStylePresetManager::GetPresetFormat()
{
    return 0;
}

OvxStringT DefaultStylePresetManager::GetCustomConfigurationDirectory()
{
    return INIGetCustomDir();
}

OvxStringT DefaultStylePresetManager::GetUserDocumentsDirectory()
{
    return GetUserDocumentsOrvexSuiteDir();
}
