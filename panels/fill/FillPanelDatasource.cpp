// The fill panel and its factory.

#include "panels/fill/FillPanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

namespace
{

constexpr auto kRows = Panels::Rows({
    {L"FillType", L"type"},
    {L"FillColor", L"color"},
    {L"FillTransparency", L"transparency"},
    {L"FillGradient", L"gradient"},
    {L"FillHatch", L"hatch"},
    {L"FillBitmap", L"bitmap"},
});

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
