// How values are written by people, kind by kind.

#include "apps/workbench/RowValues.h"

#include "apps/workbench/CssColours.h"
#include "apps/workbench/MeasureParsing.h"
#include "apps/workbench/QuotedNames.h"
#include "apps/workbench/TargetHandover.h"
#include "apps/workbench/UsageError.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Workbench
{
namespace
{

constexpr OvxStringViewT kPalettePrefix = L"palette:";

[[noreturn]] void Fail(const OvxStringT& what, const OvxStringT& text, const std::string& expected)
{
    throw UsageError("value " + Quoted(text) + " for " + OvxUtils::ToUtf8(what) + ": expected " + expected);
}

std::optional<std::uint8_t> ReadHexDigit(wchar_t character)
{
    constexpr OvxStringViewT kDigits = L"0123456789abcdef";
    constexpr OvxStringViewT kCapitals = L"0123456789ABCDEF";
    const std::size_t digit = std::min(kDigits.find(character), kCapitals.find(character));
    return digit == OvxStringViewT::npos ? std::nullopt : std::optional(static_cast<std::uint8_t>(digit));
}

/// The values of three or six hexadecimal digits behind a "#".
std::optional<CLR_COLORSPEC::Rgb> ReadHexColour(OvxStringViewT text)
{
    if ((text.size() != 4 && text.size() != 7) || text[0] != L'#')
        return std::nullopt;
    std::vector<std::uint8_t> digits;
    for (const wchar_t character : text.substr(1))
    {
        const auto digit = ReadHexDigit(character);
        if (!digit)
            return std::nullopt;
        // Of three digits, each stands for two.
        digits.insert(digits.end(), text.size() == 4 ? 2 : 1, *digit);
    }
    const auto component = [&](std::size_t index)
    { return static_cast<std::uint8_t>(digits[2 * index] * 16 + digits[2 * index + 1]); };
    return CLR_COLORSPEC::Rgb{component(0), component(1), component(2)};
}

std::optional<CLR_COLORSPEC::Rgb> ReadColour(OvxStringViewT text)
{
    const auto colour = ReadHexColour(text);
    return colour ? colour : FindCssColour(text);
}

std::string EntriesOf(const ReferenceHost::Drawing& drawing)
{
    std::vector<OvxStringT> names;
    for (const ReferenceHost::PaletteEntry& entry : drawing.GetPalette())
        names.push_back(entry.name);
    return names.empty() ? "an entry of the palette, which is empty"
                         : "an entry of the palette: " + QuotedList(names);
}

OvxUtils::Any ParseColour(const OvxStringT& what, const OvxStringT& text,
                          const ReferenceHost::Drawing& drawing)
{
    if (OvxStringViewT(text).starts_with(kPalettePrefix))
    {
        const OvxStringT name(OvxStringViewT(text).substr(kPalettePrefix.size()));
        const auto look = drawing.FindPaletteColour(name);
        if (!look)
            Fail(what, text, EntriesOf(drawing));
        return OvxUtils::Any(CLR_COLORSPEC::FromResource(name, *look));
    }
    const auto colour = ReadColour(text);
    if (!colour)
        Fail(what, text, "#rgb, #rrggbb, the name of a CSS colour, or palette:NAME");
    return OvxUtils::Any(CLR_COLORSPEC::FromRgb(*colour));
}

constexpr double kHundredthMmPerInch = 2540;
constexpr double kTenthPointsPerInch = 720;

constexpr RowUnit kLengthUnits[] = {{L"mm", 100},
                                    {L"cm", 1000},
                                    {L"in", kHundredthMmPerInch},
                                    {L"pt", kHundredthMmPerInch / 72},
                                    {L"px", kHundredthMmPerInch / 96}};

constexpr RowUnit kFontSizeUnits[] = {{L"pt", 10},
                                      {L"mm", kTenthPointsPerInch / 25.4},
                                      {L"cm", kTenthPointsPerInch / 2.54},
                                      {L"in", kTenthPointsPerInch},
                                      {L"px", kTenthPointsPerInch / 96}};

constexpr RowUnit kPercentUnits[] = {{L"%", 1}};

/// By the number of the kind; empty for kinds that are no numbers.
std::span<const RowUnit> UnitsOf(ValueKind kind)
{
    switch (kind)
    {
    case ValueKind::Length:
        return kLengthUnits;
    case ValueKind::FontSize:
        return kFontSizeUnits;
    default:
        return kPercentUnits;
    }
}

OvxStringViewT UnitNameOf(const RowDescription& row)
{
    if (!row.range)
        return UnitsOf(row.kind).front().name;
    switch (row.range->unit)
    {
    case NumberUnit::Millimetre:
        return L"mm";
    case NumberUnit::Centimetre:
        return L"cm";
    case NumberUnit::Point:
        return L"pt";
    case NumberUnit::Percent:
        break;
    }
    return L"%";
}

std::optional<double> ScaleOf(ValueKind kind, OvxStringViewT unit)
{
    for (const RowUnit& each : UnitsOf(kind))
    {
        if (each.name == unit)
            return each.valuesPerUnit;
    }
    return std::nullopt;
}

/// A number of the value's own scale in the row's unit: "0.05mm".
std::string InOwnUnit(const RowDescription& row, int value)
{
    const RowUnit unit = UnitOf(row);
    const double number = value / unit.valuesPerUnit;
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return std::string(text.data(), end) + OvxUtils::ToUtf8(unit.name);
}

std::string LimitsOf(const RowDescription& row)
{
    return row.range
               ? " from " + InOwnUnit(row, row.range->minimum) + " to " + InOwnUnit(row, row.range->maximum)
               : "";
}

std::string NumberExpectation(const RowDescription& row)
{
    switch (row.kind)
    {
    case ValueKind::Length:
        return "a length in mm, cm, in, pt or px" + LimitsOf(row);
    case ValueKind::FontSize:
        return "a size in pt, mm, cm, in or px" + LimitsOf(row);
    default:
        return "a whole percentage" + LimitsOf(row);
    }
}

/// The value that a number stands for; none when it is no number, or none that the row holds.
std::optional<int> ReadNumberValue(const RowDescription& row, const OvxStringT& text)
{
    const auto measure = ParseMeasure(text);
    if (!measure)
        return std::nullopt;
    const auto scale = ScaleOf(row.kind, measure->unit.empty() ? UnitNameOf(row) : measure->unit);
    if (!scale)
        return std::nullopt;
    const auto value = RoundToInt(measure->number * *scale);
    const bool isExact = value && *value == measure->number * *scale;
    if (!value || (row.kind == ValueKind::Percent && !isExact))
        return std::nullopt;
    if (row.range && (*value < row.range->minimum || *value > row.range->maximum))
        return std::nullopt;
    return value;
}

OvxUtils::Any ParseNumber(const RowDescription& row, const OvxStringT& what, const OvxStringT& text)
{
    const auto value = ReadNumberValue(row, text);
    if (!value)
        Fail(what, text, NumberExpectation(row));
    return OvxUtils::Any(*value);
}

OvxUtils::Any ParseChoice(const RowDescription& row, const OvxStringT& what, const OvxStringT& text)
{
    std::vector<OvxStringT> values;
    for (const ChoiceDescription& choice : row.choices)
    {
        if (choice.value == text)
            return TargetHandover::ChoiceOfText(text);
        values.push_back(choice.value);
    }
    Fail(what, text, "one of " + QuotedList(values));
}

} // namespace

OvxUtils::Any ParseRowValue(const RowDescription& row, const OvxStringT& rowName, const OvxStringT& text,
                            const ReferenceHost::Drawing& drawing)
{
    switch (row.kind)
    {
    case ValueKind::Colour:
        return ParseColour(rowName, text, drawing);
    case ValueKind::Length:
    case ValueKind::FontSize:
    case ValueKind::Percent:
        return ParseNumber(row, rowName, text);
    case ValueKind::Choice:
        return ParseChoice(row, rowName, text);
    case ValueKind::Text:
        break;
    }
    return OvxUtils::Any(text);
}

RowUnit UnitOf(const RowDescription& row)
{
    const OvxStringViewT name = UnitNameOf(row);
    return {name, ScaleOf(row.kind, name).value_or(1)};
}

CLR_COLORSPEC::Rgb ParsePlainColour(const OvxStringT& what, const OvxStringT& text)
{
    const auto colour = ReadColour(text);
    if (!colour)
        Fail(what, text, "#rgb, #rrggbb, or the name of a CSS colour");
    return *colour;
}

} // namespace Workbench
