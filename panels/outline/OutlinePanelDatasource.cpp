// The outline panel and its factory.

#include "panels/outline/OutlinePanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

namespace
{

constexpr auto kRows = Panels::Rows({
    {L"OutlineType", L"type"},
    {L"OutlineColor", L"color"},
    {L"OutlineWidth", L"width"},
    {L"OutlineTransparency", L"transparency"},
    {L"OutlineDash", L"dash"},
    {L"OutlineJoin", L"join"},
    {L"OutlineCap", L"cap"},
    {L"OutlineStartArrow", L"start-arrow"},
    {L"OutlineEndArrow", L"end-arrow"},
});

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
