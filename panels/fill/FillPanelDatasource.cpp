// The fill panel and its factory.

#include "panels/fill/FillPanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

#include <array>

namespace
{

constexpr std::array kRows{
    Panels::PanelRow{L"FillType", L"type"},
    Panels::PanelRow{L"FillColor", L"color"},
    Panels::PanelRow{L"FillTransparency", L"transparency"},
    Panels::PanelRow{L"FillGradient", L"gradient"},
    Panels::PanelRow{L"FillHatch", L"hatch"},
    Panels::PanelRow{L"FillBitmap", L"bitmap"},
};

const Panels::PanelRegistration<FillPanelDatasource> registration;

} // namespace

void FillPanelDatasource::FillDataSourceMap()
{
    RegisterRows(kRows);
}

OvxStringT FillPanelDatasource::PresetCategoryName() const
{
    return L"FillPresets";
}

Styles::PropertyKey FillPanelDatasource::GetCategory() const
{
    return Styles::FillStyleCategoryName;
}
