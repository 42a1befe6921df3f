// The paragraph panel and its factory.

#include "panels/paragraph/ParagraphPanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

#include <array>

namespace
{

constexpr std::array kRows{
    Panels::PanelRow{L"ParagraphAlign", L"align"},
    Panels::PanelRow{L"ParagraphLeftIndent", L"left-indent"},
    Panels::PanelRow{L"ParagraphRightIndent", L"right-indent"},
    Panels::PanelRow{L"ParagraphFirstLineIndent", L"first-line-indent"},
    Panels::PanelRow{L"ParagraphSpaceBefore", L"space-before"},
    Panels::PanelRow{L"ParagraphSpaceAfter", L"space-after"},
    Panels::PanelRow{L"ParagraphLineSpacing", L"line-spacing"},
};

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
