#include "tests/panels/PanelModuleCases.h"

#include "host/utils/Utf8.h"

namespace PanelTests
{

void PrintTo(const PanelModuleCase::Row& row, std::ostream* out)
{
    *out << OvxUtils::ToUtf8(row.identifier) << " as " << OvxUtils::ToUtf8(row.property);
}

void PrintTo(const PanelModuleCase& expected, std::ostream* out)
{
    *out << OvxUtils::ToUtf8(expected.module);
}

std::vector<PanelModuleCase> AllModules()
{
    return {{L"style", L"StylePanelDatasource", L"", {{L"style", L"StyleParent"}}},
            {L"fill",
             L"FillPanelDatasource",
             L"FillPresets",
             {{L"type", L"FillType"},
              {L"color", L"FillColor"},
              {L"transparency", L"FillTransparency"},
              {L"gradient", L"FillGradient"},
              {L"hatch", L"FillHatch"},
              {L"bitmap", L"FillBitmap"}}},
            {L"outline",
             L"OutlinePanelDatasource",
             L"OutlinePresets",
             {{L"type", L"OutlineType"},
              {L"color", L"OutlineColor"},
              {L"width", L"OutlineWidth"},
              {L"transparency", L"OutlineTransparency"},
              {L"dash", L"OutlineDash"},
              {L"join", L"OutlineJoin"},
              {L"cap", L"OutlineCap"},
              {L"start-arrow", L"OutlineStartArrow"},
              {L"end-arrow", L"OutlineEndArrow"}}},
            {L"character",
             L"CharacterPanelDatasource",
             L"",
             {{L"font", L"CharacterFont"},
              {L"size", L"CharacterSize"},
              {L"weight", L"CharacterWeight"},
              {L"posture", L"CharacterPosture"},
              {L"underline", L"CharacterUnderline"},
              {L"strikethrough", L"CharacterStrikethrough"},
              {L"color", L"CharacterColor"},
              {L"letter-spacing", L"CharacterLetterSpacing"}}},
            {L"paragraph",
             L"ParagraphPanelDatasource",
             L"",
             {{L"align", L"ParagraphAlign"},
              {L"left-indent", L"ParagraphLeftIndent"},
              {L"right-indent", L"ParagraphRightIndent"},
              {L"first-line-indent", L"ParagraphFirstLineIndent"},
              {L"space-before", L"ParagraphSpaceBefore"},
              {L"space-after", L"ParagraphSpaceAfter"},
              {L"line-spacing", L"ParagraphLineSpacing"}}}};
}

} // namespace PanelTests
