#pragma once

#include "host/style_model/IStylesSourceApp.h"

/// Stands in for the application's styles services where the host supplies none.
class DefaultStylesApp final : public IStylesSourceApp
{
public:
    /// The one object, alive as long as the module.
    [[nodiscard]] static IStylesSourceApp& GetInstance();

    /// No name is excluded.
    bool IsExcludedStyleName(const OvxStringT& name) override;

    /// The name as it is.
    OvxStringT GetDisplayStyleName(const OvxStringT& name) override;

    /// A manager that keeps no presets; made on first use, the same each time.
    Styles::StylePresetManager& GetStylePresetManager() override;

private:
    DefaultStylesApp() = default;
};
