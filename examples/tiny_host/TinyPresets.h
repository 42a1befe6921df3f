#pragma once

#include "host/Export.h"
#include "host/style_model/StylePresetManager.h"

#include <memory>

namespace TinyHost
{

/// The keeper of this host's presets. They lie in memory and go with the keeper.
class STYLEPROPERTIES_HOST_API Presets final : public Styles::StylePresetManager
{
public:
    Presets() = default;

    /// A copy of a preset; null when there is none.
    [[nodiscard]] std::unique_ptr<Styles::Style> Load(const OvxStringT& category, const OvxStringT& name);

protected:
    // Nothing lies in files here: folders and files are the names of categories and presets.
    [[nodiscard]] OvxStringT GetPresetFolder(Styles::PresetLocation location, OvxStringT category) override;
    [[nodiscard]] OvxStringT GetPresetFileName(Styles::PresetLocation location, OvxStringT name) override;
    [[nodiscard]] int GetPresetFormat() override;
    [[nodiscard]] OvxStringT GetCustomConfigurationDirectory() override;
    [[nodiscard]] OvxStringT GetUserDocumentsDirectory() override;
};

} // namespace TinyHost
