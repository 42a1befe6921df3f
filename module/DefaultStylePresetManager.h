#pragma once

#include "host/style_model/StylePresetManager.h"

/// A preset manager that names no folder, no file and no format, so that presets are kept nowhere.
///
/// The host's folders are still told, for whoever asks where presets would lie.
class DefaultStylePresetManager final : public Styles::StylePresetManager
{
public:
    DefaultStylePresetManager() = default;

protected:
    OvxStringT GetPresetFolder(Styles::PresetLocation location, OvxStringT category) override;
    OvxStringT GetPresetFileName(Styles::PresetLocation location, OvxStringT name) override;
    int GetPresetFormat() override;
    /// The host's folder.
    OvxStringT GetCustomConfigurationDirectory() override;
    /// The host's folder.
    OvxStringT GetUserDocumentsDirectory() override;
};
