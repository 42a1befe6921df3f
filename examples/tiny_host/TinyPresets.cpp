// Presets, kept in memory for each keeper. A keeper whose hooks name no folder or no format keeps none, as
// the library's own stand-in does.

#include "tiny_host/TinyPresets.h"

#include "host/services/ConfigurationFolders.h"
#include "tiny_host/Lasting.h"

#include <map>
#include <utility>

namespace Styles
{

namespace
{

using Folder = std::map<OvxStringT, Style>;

/// All presets of all keepers, by the names of their folders.
using Keepers = std::map<const StylePresetManager*, std::map<OvxStringT, Folder>>;

constexpr auto kLocation = PresetLocation::CustomConfiguration;

} // namespace

StylePresetManager::StylePresetManager() = default;

StylePresetManager::~StylePresetManager()
{
    TinyHost::Lasting<Keepers>().erase(this);
}

std::vector<OvxStringT> StylePresetManager::GetPresetNames(const OvxStringT& category)
{
    std::vector<OvxStringT> names;
    for (const auto& [name, style] : TinyHost::Lasting<Keepers>()[this][GetPresetFolder(kLocation, category)])
        names.push_back(name);
    return names;
}

bool StylePresetManager::DoesPresetNameExist(const OvxStringT& category, const OvxStringT& name)
{
    return TinyHost::Lasting<Keepers>()[this][GetPresetFolder(kLocation, category)].contains(name);
}

bool StylePresetManager::AddPreset(const OvxStringT& category, const OvxStringT& name, const Style& style,
                                   bool replace)
{
    const OvxStringT folder = GetPresetFolder(kLocation, category);
    const bool isKept =
        !folder.empty() && !GetPresetFileName(kLocation, name).empty() && GetPresetFormat() != 0;
    if (!isKept || (!replace && DoesPresetNameExist(category, name)))
        return false;
    TinyHost::Lasting<Keepers>()[this][folder].insert_or_assign(name, style);
    return true;
}

bool StylePresetManager::DeletePreset(const OvxStringT& category, const OvxStringT& name)
{
    return TinyHost::Lasting<Keepers>()[this][GetPresetFolder(kLocation, category)].erase(name) != 0;
}

OvxStringT StylePresetManager::GetUnusedPresetName(const OvxStringT& category, const OvxStringT& base)
{
    OvxStringT name = base;
    for (int number = 2; DoesPresetNameExist(category, name); ++number)
        name = base + OvxStringT::Format(L" %d", number);
    return name;
}

} // namespace Styles

std::unique_ptr<Styles::Style> TinyHost::Presets::Load(const OvxStringT& category, const OvxStringT& name)
{
    const Styles::Folder& folder = Lasting<Styles::Keepers>()[this][category];
    const auto found = folder.find(name);
    return found == folder.end() ? nullptr : std::make_unique<Styles::Style>(found->second);
}

OvxStringT TinyHost::Presets::GetPresetFolder(Styles::PresetLocation location, OvxStringT category)
{
    return location == Styles::kLocation ? std::move(category) : OvxStringT();
}

OvxStringT TinyHost::Presets::GetPresetFileName(Styles::PresetLocation location, OvxStringT name)
{
    return location == Styles::kLocation ? std::move(name) : OvxStringT();
}

int TinyHost::Presets::GetPresetFormat()
{
    return 1;
}

OvxStringT TinyHost::Presets::GetCustomConfigurationDirectory()
{
    return INIGetCustomDir();
}

OvxStringT TinyHost::Presets::GetUserDocumentsDirectory()
{
    return GetUserDocumentsOrvexSuiteDir();
}

OvxStringT INIGetCustomDir()
{
    return {};
}

OvxStringT GetUserDocumentsOrvexSuiteDir()
{
    return {};
}
