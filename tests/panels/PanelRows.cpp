#include "tests/panels/PanelRows.h"

#include "host/utils/Utf8.h"
#include "tests/panels/PanelDocument.h"

namespace PanelTests
{

namespace
{

struct Row
{
    const wchar_t* key;
    const wchar_t* property;
    OvxUtils::Any value;
    OvxUtils::Any otherValue;
};

std::vector<Row> FillRows()
{
    return {{L"type", L"FillType", Choice(L"solid"), Choice(L"hatch")},
            {L"color", L"FillColor", Colour(0x3366cc), Colour(0xcc6633)},
            {L"transparency", L"FillTransparency", Number(30), Number(0)},
            {L"gradient", L"FillGradient", Text(L"Sunrise"), Text(L"Steel")},
            {L"hatch", L"FillHatch", Text(L"Crossed Red"), Text(L"Thin Black")},
            {L"bitmap", L"FillBitmap", Text(L"Stones"), Text(L"Sky")}};
}

std::vector<Row> OutlineRows()
{
    return {{L"type", L"OutlineType", Choice(L"solid"), Choice(L"dash")},
            {L"color", L"OutlineColor", Colour(0x000000), Colour(0xffffff)},
            {L"width", L"OutlineWidth", Number(50), Number(0)},
            {L"transparency", L"OutlineTransparency", Number(20), Number(80)},
            {L"dash", L"OutlineDash", Text(L"Fine Dots"), Text(L"Long Dashes")},
            {L"join", L"OutlineJoin", Choice(L"round"), Choice(L"miter")},
            {L"cap", L"OutlineCap", Choice(L"butt"), Choice(L"square")},
            {L"start-arrow", L"OutlineStartArrow", Text(L"Arrow"), Text(L"Circle")},
            {L"end-arrow", L"OutlineEndArrow", Text(L"Square 45"), Text(L"Arrow")}};
}

std::vector<Row> CharacterRows()
{
    return {{L"font", L"CharacterFont", Text(L"Sans"), Text(L"Serif")},
            {L"size", L"CharacterSize", Number(140), Number(105)},
            {L"weight", L"CharacterWeight", Choice(L"bold"), Choice(L"normal")},
            {L"posture", L"CharacterPosture", Choice(L"italic"), Choice(L"normal")},
            {L"underline", L"CharacterUnderline", Choice(L"wave"), Choice(L"none")},
            {L"strikethrough", L"CharacterStrikethrough", Choice(L"solid"), Choice(L"none")},
            {L"color", L"CharacterColor", Colour(0x800000), Colour(0x000080)},
            {L"letter-spacing", L"CharacterLetterSpacing", Number(-18), Number(0)}};
}

std::vector<Row> ParagraphRows()
{
    return {{L"align", L"ParagraphAlign", Choice(L"center"), Choice(L"start")},
            {L"left-indent", L"ParagraphLeftIndent", Number(1000), Number(0)},
            {L"right-indent", L"ParagraphRightIndent", Number(500), Number(250)},
            {L"first-line-indent", L"ParagraphFirstLineIndent", Number(-300), Number(300)},
            {L"space-before", L"ParagraphSpaceBefore", Number(212), Number(0)},
            {L"space-after", L"ParagraphSpaceAfter", Number(106), Number(212)},
            {L"line-spacing", L"ParagraphLineSpacing", Number(120), Text(L"5.25mm")}};
}

void Append(std::vector<PanelRowSample>& samples, const OvxStringT& module, const OvxStringT& className,
            const std::vector<Row>& rows)
{
    for (const Row& row : rows)
        samples.push_back({module, className, module, row.key, row.property, row.value, row.otherValue});
}

} // namespace

void PrintTo(const PanelRowSample& sample, std::ostream* out)
{
    *out << OvxUtils::ToUtf8(sample.property);
}

std::vector<PanelRowSample> AllRows()
{
    std::vector<PanelRowSample> samples;
    Append(samples, L"fill", L"FillPanelDatasource", FillRows());
    Append(samples, L"outline", L"OutlinePanelDatasource", OutlineRows());
    Append(samples, L"character", L"CharacterPanelDatasource", CharacterRows());
    Append(samples, L"paragraph", L"ParagraphPanelDatasource", ParagraphRows());
    return samples;
}

} // namespace PanelTests
