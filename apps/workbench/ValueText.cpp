#include "apps/workbench/ValueText.h"

#include "host/resources/Resources.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Workbench
{
namespace
{

using Framework::Resources::GetString;

struct UnitText
{
    NumberUnit unit;
    int scale; ///< How many of the value's own steps make one of the unit; a power of ten.
    OvxStringViewT symbol;
};

constexpr UnitText kUnitTexts[] = {{NumberUnit::Millimetre, 100, L"mm"},
                                   {NumberUnit::Centimetre, 1000, L"cm"},
                                   {NumberUnit::Point, 10, L"pt"},
                                   {NumberUnit::Percent, 1, L"%"}};

/// A number of steps as a decimal number, without zeros at its end.
OvxStringT DecimalNumber(int steps, int scale)
{
    const long long magnitude = steps < 0 ? -static_cast<long long>(steps) : steps;
    OvxStringT text = (steps < 0 ? L"-" : L"") + OvxStringT(std::to_wstring(magnitude / scale));
    long long rest = magnitude % scale;
    if (rest != 0)
        text += GetString(L"number.decimal-separator");
    while (rest != 0)
    {
        rest *= 10;
        text += OvxStringT(std::to_wstring(rest / scale));
        rest %= scale;
    }
    return text;
}

OvxStringT NumberToText(int number, const std::optional<NumberRange>& range)
{
    if (!range)
        return OvxStringT(std::to_wstring(number));
    const auto* const unit = std::find_if(std::begin(kUnitTexts), std::end(kUnitTexts),
                                          [&](const UnitText& each) { return each.unit == range->unit; });
    return DecimalNumber(number, unit->scale) + OvxStringT(L" ") + unit->symbol;
}

OvxStringT ChoiceToText(const OvxStringT& value, const std::vector<ChoiceDescription>& choices)
{
    const auto choice =
        std::find_if(choices.begin(), choices.end(), [&](const auto& each) { return each.value == value; });
    return choice == choices.end() ? value : GetString(choice->label);
}

} // namespace

OvxStringT ValueToText(const RowReport& row)
{
    if (const auto* number = std::get_if<int>(&row.value))
        return NumberToText(*number, row.description->range);
    if (const auto* text = std::get_if<OvxStringT>(&row.value))
        return ChoiceToText(*text, row.description->choices);
    return {};
}

} // namespace Workbench
