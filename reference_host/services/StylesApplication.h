#pragma once

#include "host/Export.h"
#include "host/style_model/IStylesSourceApp.h"
#include "reference_host/services/IDocumentStyles.h"
#include "reference_host/services/PresetManager.h"

namespace ReferenceHost
{

/// What the application knows of style names, asked of the open document, and its keeper of presets.
///
/// Without an open document no name is excluded, and a name is its own display name.
class STYLEPROPERTIES_HOST_API StylesApplication : public IStylesSourceApp
{
public:
    StylesApplication();
    StylesApplication(const StylesApplication&) = delete;
    StylesApplication& operator=(const StylesApplication&) = delete;
    virtual ~StylesApplication();

    /// Sets the open document; borrowed until it is replaced, null for none.
    void SetDocument(const IDocumentStyles* openDocument) noexcept;

    /// As GetStylePresetManager, for who loads presets.
    [[nodiscard]] PresetManager& GetPresets() noexcept { return presets; }

    bool IsExcludedStyleName(const OvxStringT& name) override;
    OvxStringT GetDisplayStyleName(const OvxStringT& name) override;
    Styles::StylePresetManager& GetStylePresetManager() override;

private:
    const IDocumentStyles* document = nullptr; ///< Borrowed; null while no document is open.
    PresetManager presets;
};

} // namespace ReferenceHost
