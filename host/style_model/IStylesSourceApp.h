#pragma once

#include "host/Export.h"
#include "host/style_model/StylePresetManager.h"
#include "host/utils/OvxStringT.h"

/// What an application adds to styles as a whole. Not owned by who uses it.
class STYLEPROPERTIES_HOST_API IStylesSourceApp
{
public:
    /// Tells whether a named style is kept from users as a style of its own.
    virtual bool IsExcludedStyleName(const OvxStringT& name) = 0;

    /// The form of a style name that people read.
    virtual OvxStringT GetDisplayStyleName(const OvxStringT& name) = 0;

    /// The keeper of presets; lives as long as the application.
    virtual Styles::StylePresetManager& GetStylePresetManager() = 0;

protected:
    ~IStylesSourceApp() = default;
};
