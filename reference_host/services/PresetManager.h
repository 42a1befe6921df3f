#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/style_model/StylePresetManager.h"

#include <map>
#include <memory>

namespace ReferenceHost
{

/// The application's keeper of presets: a folder "presets" below the person's configuration, in it a folder
/// for each preset category, in it a file for each preset.
class STYLEPROPERTIES_HOST_API PresetManager : public Styles::StylePresetManager
{
public:
    PresetManager();
    ~PresetManager() override;

    /// A copy of a preset; null when there is none of that name.
    [[nodiscard]] std::unique_ptr<Styles::Style> LoadPreset(const OvxStringT& category,
                                                            const OvxStringT& name);

    /// Copies of all presets of a category, by name.
    [[nodiscard]] std::map<OvxStringT, std::unique_ptr<Styles::Style>>
    LoadPresets(const OvxStringT& category);

protected:
    /// Relative to the configuration's folder; presets are kept in no other place.
    OvxStringT GetPresetFolder(Styles::PresetLocation location, OvxStringT category) override;

    /// Without the extension.
    OvxStringT GetPresetFileName(Styles::PresetLocation location, OvxStringT name) override;
    int GetPresetFormat() override;
    OvxStringT GetCustomConfigurationDirectory() override;
    OvxStringT GetUserDocumentsDirectory() override;
};

} // namespace ReferenceHost
