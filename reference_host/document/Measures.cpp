#include "reference_host/document/Measures.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace ReferenceHost
{

namespace
{

constexpr double kHundredthMmInAnInch = 2540.0;
constexpr double kHundredthMmInAPoint = kHundredthMmInAnInch / 72.0;
constexpr double kPixelsInAnInch = 96.0;

struct Unit
{
    std::string_view name;
    double hundredthMm;
};

constexpr std::array<Unit, 7> kUnits{{{"cm", 1000.0},
                                      {"mm", 100.0},
                                      {"in", kHundredthMmInAnInch},
                                      {"pt", kHundredthMmInAPoint},
                                      {"pc", 12.0 * kHundredthMmInAPoint},
                                      {"px", kHundredthMmInAnInch / kPixelsInAnInch},
                                      {"m", 100000.0}}};

/// A number at the front of a text, and what follows it.
struct LeadingNumber
{
    double number = 0;
    std::string_view rest;
};

std::optional<LeadingNumber> ParseNumber(std::string_view text)
{
    // What from_chars takes beyond the numbers of OpenDocument begins with a letter: "inf", "nan".
    const std::size_t first = text.find_first_not_of('-');
    if (first == std::string_view::npos ||
        std::string_view("0123456789.").find(text[first]) == std::string_view::npos)
        return std::nullopt;
    LeadingNumber result;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), result.number, std::chars_format::fixed);
    if (error != std::errc())
        return std::nullopt;
    result.rest = text.substr(static_cast<std::size_t>(end - text.data()));
    return result;
}

std::optional<double> ParseHundredthMm(std::string_view text)
{
    const std::optional<LeadingNumber> leading = ParseNumber(text);
    if (!leading)
        return std::nullopt;
    if (leading->rest.empty() && leading->number == 0)
        return 0.0;
    const auto* const unit = std::ranges::find(kUnits, leading->rest, &Unit::name);
    if (unit == kUnits.end())
        return std::nullopt;
    return leading->number * unit->hundredthMm;
}

} // namespace

std::optional<int> ParseLength(std::string_view text)
{
    const std::optional<double> length = ParseHundredthMm(text);
    return length ? RoundToInt(*length) : std::nullopt;
}

std::optional<int> ParseFontSize(std::string_view text)
{
    const std::optional<double> length = ParseHundredthMm(text);
    if (!length || *length <= 0)
        return std::nullopt;
    return RoundToInt(*length * 10.0 / kHundredthMmInAPoint);
}

std::optional<double> ParsePercent(std::string_view text)
{
    const std::optional<LeadingNumber> leading = ParseNumber(text);
    if (!leading || leading->rest != "%")
        return std::nullopt;
    return leading->number;
}

std::optional<double> ParseFraction(std::string_view text)
{
    const std::optional<LeadingNumber> leading = ParseNumber(text);
    if (!leading || (!leading->rest.empty() && leading->rest != "%"))
        return std::nullopt;
    const double percent = leading->rest.empty() ? leading->number * 100.0 : leading->number;
    if (percent < 0 || percent > 100)
        return std::nullopt;
    return percent;
}

std::optional<int> RoundToInt(double number)
{
    const double rounded = std::round(number);
    // The comparison is false for what is no number at all.
    const bool fits =
        rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max();
    return fits ? std::optional(static_cast<int>(rounded)) : std::nullopt;
}

std::string FormatLength(int hundredthMm)
{
    const auto magnitude = static_cast<unsigned>(std::abs(static_cast<long long>(hundredthMm)));
    std::string text = (hundredthMm < 0 ? "-" : "") + std::to_string(magnitude / 100);
    const unsigned fraction = magnitude % 100;
    if (fraction != 0)
    {
        text += '.';
        text += static_cast<char>('0' + fraction / 10);
        if (fraction % 10 != 0)
            text += static_cast<char>('0' + fraction % 10);
    }
    return text + "mm";
}

std::string FormatLengthLike(int hundredthMm, std::string_view example)
{
    constexpr int kMostDecimals = 5;
    const std::optional<LeadingNumber> leading = ParseNumber(example);
    const auto* const unit = leading ? std::ranges::find(kUnits, leading->rest, &Unit::name) : kUnits.end();
    for (int decimals = 0; unit != kUnits.end() && decimals <= kMostDecimals; ++decimals)
    {
        std::array<char, 64> digits{};
        const auto [end, error] =
            std::to_chars(digits.data(), digits.data() + digits.size(), hundredthMm / unit->hundredthMm,
                          std::chars_format::fixed, decimals);
        const std::string text = std::string(digits.data(), end).append(unit->name);
        if (error == std::errc() && ParseLength(text) == hundredthMm)
            return text;
    }
    return FormatLength(hundredthMm);
}

std::string FormatTenths(int tenths)
{
    const auto magnitude = static_cast<unsigned>(std::abs(static_cast<long long>(tenths)));
    std::string text = (tenths < 0 ? "-" : "") + std::to_string(magnitude / 10);
    if (magnitude % 10 != 0)
        text.append(".").append(std::to_string(magnitude % 10));
    return text;
}

} // namespace ReferenceHost
