// The character panel and its factory.

#include "panels/character/CharacterPanelDatasource.h"

#include "host/style_model/CategoryNames.h"
#include "panels/PanelRegistration.h"

namespace
{

constexpr auto kRows = Panels::Rows({
    {L"CharacterFont", L"font"},
    {L"CharacterSize", L"size"},
    {L"CharacterWeight", L"weight"},
    {L"CharacterPosture", L"posture"},
    {L"CharacterUnderline", L"underline"},
    {L"CharacterStrikethrough", L"strikethrough"},
    {L"CharacterColor", L"color"},
    {L"CharacterLetterSpacing", L"letter-spacing"},
});

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
