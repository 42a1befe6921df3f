#pragma once

#include "host/Export.h"
#include "host/style_model/StylePresetManager.h"

namespace ReferenceHost
{

/// The application's keeper of presets. It names no folder and no file, and therefore keeps none.
class STYLEPROPERTIES_HOST_API PresetManager : public Styles::StylePresetManager
{
public:
    PresetManager();
    ~PresetManager() override;

protected:
    OvxStringT GetPresetFolder(Styles::PresetLocation location, OvxStringT category) override;
    OvxStringT GetPresetFileName(Styles::PresetLocation location, OvxStringT name) override;
    int GetPresetFormat() override;
    OvxStringT GetCustomConfigurationDirectory() override;
    OvxStringT GetUserDocumentsDirectory() override;
};

} // namespace ReferenceHost
