#include "host/style_model/StylePresetManager.h"

// This host keeps no presets yet, wherever the hooks say that they lie: it lists none and takes none.
namespace Styles
{

StylePresetManager::StylePresetManager() = default;
StylePresetManager::~StylePresetManager() = default;

std::vector<OvxStringT> StylePresetManager::GetPresetNames([[maybe_unused]] const OvxStringT& category)
{
    return {};
}

bool StylePresetManager::DoesPresetNameExist([[maybe_unused]] const OvxStringT& category,
                                             [[maybe_unused]] const OvxStringT& name)
{
    return false;
}

bool StylePresetManager::AddPreset([[maybe_unused]] const OvxStringT& category,
                                   [[maybe_unused]] const OvxStringT& name,
                                   [[maybe_unused]] const Style& style, [[maybe_unused]] bool replace)
{
    return false;
}

bool StylePresetManager::DeletePreset([[maybe_unused]] const OvxStringT& category,
                                      [[maybe_unused]] const OvxStringT& name)
{
    return false;
}

OvxStringT StylePresetManager::GetUnusedPresetName([[maybe_unused]] const OvxStringT& category,
                                                   const OvxStringT& base)
{
    return base;
}

} // namespace Styles
