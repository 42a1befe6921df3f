#include "apps/workbench/MeasureParsing.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace Workbench
{
namespace
{

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

/// Where the digits end that begin at `begin`.
std::size_t EndOfDigits(OvxStringViewT text, std::size_t begin)
{
    while (begin < text.size() && IsDigit(text[begin]))
        ++begin;
    return begin;
}

/// Where the number ends that begins at `begin`, behind its sign; `begin` when none does.
std::size_t EndOfNumber(OvxStringViewT text, std::size_t begin)
{
    const std::size_t point = EndOfDigits(text, begin);
    if (point == text.size() || text[point] != L'.')
        return point;
    const std::size_t end = EndOfDigits(text, point + 1);
    const bool hasDigits = point > begin || end > point + 1;
    return hasDigits ? end : begin;
}

/// Reads a number that is made of ASCII characters alone; none when a double cannot hold it.
std::optional<double> ReadNumber(OvxStringViewT text)
{
    std::string narrow;
    for (const wchar_t character : text)
        narrow += static_cast<char>(character);
    double number = 0;
    const auto result = std::from_chars(narrow.data(), narrow.data() + narrow.size(), number);
    return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<Measure> ParseMeasure(OvxStringViewT text)
{
    const bool hasSign = !text.empty() && (text[0] == L'-' || text[0] == L'+');
    const std::size_t begin = hasSign ? 1 : 0;
    const std::size_t end = EndOfNumber(text, begin);
    if (end == begin)
        return std::nullopt;
    const auto number = ReadNumber(text.substr(begin, end - begin));
    if (!number)
        return std::nullopt;
    const std::size_t unit = std::min(text.find_first_not_of(L' ', end), text.size());
    return Measure{hasSign && text[0] == L'-' ? -*number : *number, text.substr(unit)};
}

std::optional<int> RoundToInt(double number)
{
    const double rounded = std::round(number);
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
        return std::nullopt;
    return static_cast<int>(rounded);
}

} // namespace Workbench
