#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <vector>

namespace Styles
{

/// Where a kind of presets lies.
enum class PresetLocation
{
    CustomConfiguration, ///< Below the folder of the user's own configuration.
    UserDocuments,       ///< Below the folder of the user's documents.
};

/// Keeps presets: styles by name, in preset categories.
///
/// The operations are the host's; the hooks tell them where presets lie. A manager whose hooks give empty
/// names keeps nothing: it lists none and adds none.
class STYLEPROPERTIES_HOST_API StylePresetManager
{
public:
    StylePresetManager(const StylePresetManager&) = delete;
    StylePresetManager& operator=(const StylePresetManager&) = delete;
    virtual ~StylePresetManager();

    /// The names of the presets of a category, in the order in which lists show them.
    [[nodiscard]] std::vector<OvxStringT> GetPresetNames(const OvxStringT& category);

    /// Tells whether the category has a preset of that name.
    [[nodiscard]] bool DoesPresetNameExist(const OvxStringT& category, const OvxStringT& name);

    /// Keeps a copy of `style` under `name`. With `replace` false, a name that exists is left as it is.
    ///
    /// @returns whether the preset was kept.
    bool AddPreset(const OvxStringT& category, const OvxStringT& name, const Style& style, bool replace);

    /// Drops a preset.
    ///
    /// @returns whether there was one.
    bool DeletePreset(const OvxStringT& category, const OvxStringT& name);

    /// A name made from `base` that the category does not hold yet; `base` itself when it is free.
    [[nodiscard]] OvxStringT GetUnusedPresetName(const OvxStringT& category, const OvxStringT& base);

protected:
    StylePresetManager();

    /// The folder of a category below the given location; empty when presets are not kept there.
    [[nodiscard]] virtual OvxStringT GetPresetFolder(PresetLocation location, OvxStringT category) = 0;

    /// The file of a preset within its folder; empty when presets are not kept there.
    [[nodiscard]] virtual OvxStringT GetPresetFileName(PresetLocation location, OvxStringT name) = 0;

    /// The number of the file format in which presets are kept; 0 when none are.
    [[nodiscard]] virtual int GetPresetFormat() = 0;

    /// Where the settings of the user lie; empty when there is no such place.
    [[nodiscard]] virtual OvxStringT GetCustomConfigurationDirectory() = 0;

    /// Where the documents of the user lie; empty when there is no such place.
    [[nodiscard]] virtual OvxStringT GetUserDocumentsDirectory() = 0;
};

} // namespace Styles
