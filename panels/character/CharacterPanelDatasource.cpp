// The character panel and its factory.

#include "panels/character/CharacterPanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

#include <array>

namespace
{

constexpr std::array kRows{
    Panels::PanelRow{L"CharacterFont", L"font"},
    Panels::PanelRow{L"CharacterSize", L"size"},
    Panels::PanelRow{L"CharacterWeight", L"weight"},
    Panels::PanelRow{L"CharacterPosture", L"posture"},
    Panels::PanelRow{L"CharacterUnderline", L"underline"},
    Panels::PanelRow{L"CharacterStrikethrough", L"strikethrough"},
    Panels::PanelRow{L"CharacterColor", L"color"},
    Panels::PanelRow{L"CharacterLetterSpacing", L"letter-spacing"},
};

const Panels::PanelRegistration<CharacterPanelDatasource> registration;

} // namespace

void CharacterPanelDatasource::FillDataSourceMap()
{
    RegisterRows(kRows);
}

Styles::PropertyKey CharacterPanelDatasource::GetCategory() const
{
    return Styles::GetCharacterStyleCategoryName();
}
