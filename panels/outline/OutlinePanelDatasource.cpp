// The outline panel and its factory.

#include "panels/outline/OutlinePanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

#include <array>

namespace
{

constexpr std::array kRows{
    Panels::PanelRow{L"OutlineType", L"type"},
    Panels::PanelRow{L"OutlineColor", L"color"},
    Panels::PanelRow{L"OutlineWidth", L"width"},
    Panels::PanelRow{L"OutlineTransparency", L"transparency"},
    Panels::PanelRow{L"OutlineDash", L"dash"},
    Panels::PanelRow{L"OutlineJoin", L"join"},
    Panels::PanelRow{L"OutlineCap", L"cap"},
    Panels::PanelRow{L"OutlineStartArrow", L"start-arrow"},
    Panels::PanelRow{L"OutlineEndArrow", L"end-arrow"},
};

const Panels::PanelRegistration<OutlinePanelDatasource> registration;

} // namespace

void OutlinePanelDatasource::FillDataSourceMap()
{
    RegisterRows(kRows);
}

OvxStringT OutlinePanelDatasource::PresetCategoryName() const
{
    return L"OutlinePresets";
}

Styles::PropertyKey OutlinePanelDatasource::GetCategory() const
{
    return Styles::OutlineStyleCategoryName;
}
