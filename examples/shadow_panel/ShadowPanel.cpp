// A panel for the drop shadows of shapes. It brings its own category, "shadow": shadow.panel.xml tells
// programs where its properties stand in a drawing, and nobody else needs to know of it.

#include "host/data_binding/DataSource.h"
#include "panels/PanelDatasource.h"
#include "panels/PanelRegistration.h"

using Styles::PropertyKey;

/// Whether shapes cast a shadow, and how it looks.
class ShadowPanel final : public Panels::PanelDatasource, public DataSource<ShadowPanel, true>
{
public:
    /// Binds the rows: a line for each, with the bound name of its value and its place in the category.
    void FillDataSourceMap()
    {
        static constexpr auto kRows = Panels::Rows({
            {L"ShadowVisible", L"visible"},
            {L"ShadowColor", L"color"},
            {L"ShadowDistanceX", L"distance-x"},
            {L"ShadowDistanceY", L"distance-y"},
            {L"ShadowTransparency", L"transparency"},
        });
        RegisterRows(kRows);
    }

    /// Shadows can be kept as presets, apart from those of other panels.
    [[nodiscard]] OvxStringT PresetCategoryName() const override { return L"ShadowPresets"; }

    /// Says in the title when the rows describe shadows that nobody sees.
    [[nodiscard]] OvxStringT GetSectionTitle() override
    {
        const OvxStringT title = PanelDatasource::GetSectionTitle();
        return IsHidden() ? title + OvxStringT(L" (hidden)") : title;
    }

protected:
    [[nodiscard]] PropertyKey GetCategory() const override { return KeyOf(L"shadow"); }

private:
    [[nodiscard]] static PropertyKey KeyOf(OvxStringViewT text)
    {
        return PropertyKey(Styles::PooledString<Styles::StringPool>(OvxStringT(text)));
    }

    /// Tells whether all targets say that their shadow is not shown.
    [[nodiscard]] bool IsHidden() const
    {
        const auto visible = Read<OvxUtils::Any>(L"ShadowVisible");
        const auto* choice = visible.TryGet<PropertyKey>();
        return choice != nullptr && *choice == KeyOf(L"hidden");
    }
};

namespace
{

// Programs find the class while the module is loaded.
const Panels::PanelRegistration<ShadowPanel> registration;

} // namespace
