// The paragraph panel and its factory.

#include "panels/paragraph/ParagraphPanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

namespace
{

constexpr auto kRows = Panels::Rows({
    {L"ParagraphAlign", L"align"},
    {L"ParagraphLeftIndent", L"left-indent"},
    {L"ParagraphRightIndent", L"right-indent"},
    {L"ParagraphFirstLineIndent", L"first-line-indent"},
    {L"ParagraphSpaceBefore", L"space-before"},
    {L"ParagraphSpaceAfter", L"space-after"},
    {L"ParagraphLineSpacing", L"line-spacing"},
});

const Panels::PanelRegistration<ParagraphPanelDatasource> registration;

} // namespace

void ParagraphPanelDatasource::FillDataSourceMap()
{
    RegisterRows(kRows);
}

Styles::PropertyKey ParagraphPanelDatasource::GetCategory() const
{
    return Styles::GetParagraphStyleCategoryName();
}
