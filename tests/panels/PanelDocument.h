#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/history/History.h"
#include "reference_host/services/IDocumentEditor.h"
#include "reference_host/services/IDocumentStyles.h"
#include "reference_host/style_model/NamedStyleSheet.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace PanelTests
{

/// The key of a text.
[[nodiscard]] Styles::PropertyKey Key(const OvxStringT& text);

/// A plain colour, as 0xrrggbb.
[[nodiscard]] OvxUtils::Any Colour(std::uint32_t rgb);

/// A colour that refers to the palette entry `name` and looks like 0xrrggbb.
[[nodiscard]] OvxUtils::Any PaletteColour(const OvxStringT& name, std::uint32_t rgb);

[[nodiscard]] OvxUtils::Any Number(int number);
[[nodiscard]] OvxUtils::Any Choice(const OvxStringT& text);
[[nodiscard]] OvxUtils::Any Text(const OvxStringT& text);

/// A document in memory: a sheet, a default style, and objects, and the history of their values. Whole styles
/// have their four substyles. Named styles come by AddNamed() alone.
class PanelDocument : public ReferenceHost::IDocumentStyles, public ReferenceHost::IDocumentEditor
{
public:
    PanelDocument();
    PanelDocument(const PanelDocument&) = delete;
    PanelDocument& operator=(const PanelDocument&) = delete;
    virtual ~PanelDocument();

    /// Adds a named style; the sheet owns it.
    Styles::Style* AddNamed(const OvxStringT& name, Styles::Style* parent = nullptr);

    /// Adds the style of an object; the document owns it until RemoveObjects().
    Styles::Style* AddObject(Styles::Style* parent);

    /// Adds `count` of them and gives them in order.
    std::vector<Styles::Style*> AddObjects(std::size_t count, Styles::Style* parent);

    /// Ends all objects.
    void RemoveObjects();

    /// The default style, to which all styles fall back.
    [[nodiscard]] Styles::Style* GetDefaults() const noexcept { return defaults.get(); }

    Styles::StyleSheet* GetStyleSheet() override;
    std::vector<Styles::Style*> GetDefaultStyles() override;
    [[nodiscard]] bool IsHidden(const OvxStringT& styleName) const override;
    [[nodiscard]] OvxStringT GetDisplayName(const OvxStringT& styleName) const override;

    ReferenceHost::IDocumentEditor* GetEditor() override { return this; }

    ReferenceHost::History& GetHistory() override { return history; }

    Styles::Style* AddStyle(const Styles::PropertyKey& category, const OvxStringT& name) override;
    bool RenameStyle(const OvxStringT& name, const OvxStringT& newName) override;

private:
    [[nodiscard]] std::unique_ptr<Styles::Style> MakeWhole(Styles::Style* parent);

    std::unique_ptr<Styles::Style> defaults;
    ReferenceHost::NamedStyleSheet sheet;
    std::vector<std::unique_ptr<Styles::Style>> objects;
    ReferenceHost::History history; ///< Goes before the styles whose values it keeps.
};

/// Sets a property in the substyle `category` of a whole style.
void Set(Styles::Style* whole, const OvxStringT& category, const OvxStringT& key, const OvxUtils::Any& value);

} // namespace PanelTests
