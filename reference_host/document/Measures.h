#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// A length with a unit (mm, cm, m, in, pt, pc, px), or 0 without one: hundredths of a millimetre, rounded to
/// the nearest whole one. None for anything else, and for what an int cannot hold.
[[nodiscard]] std::optional<int> ParseLength(std::string_view text);

/// A length as a font size: tenths of a point, rounded to the nearest whole one. None for what is no length,
/// and for a size that is not positive.
[[nodiscard]] std::optional<int> ParseFontSize(std::string_view text);

/// The number before the "%"; none without it.
[[nodiscard]] std::optional<double> ParsePercent(std::string_view text);

/// A percentage from 0 to 100, or a number from 0 to 1: the percentage. None for anything else.
[[nodiscard]] std::optional<double> ParseFraction(std::string_view text);

/// The nearest whole number, halves away from zero; none when an int cannot hold it.
[[nodiscard]] std::optional<int> RoundToInt(double number);

/// Hundredths of a millimetre as a length in millimetres that ParseLength() reads back: "5mm", "5.25mm",
/// "-0.3mm".
[[nodiscard]] std::string FormatLength(int hundredthMm);

/// Hundredths of a millimetre in the unit of `example`, a length such as "0.5cm", with as few decimals as
/// ParseLength() needs to read them back; as FormatLength() when `example` has no unit, or when too many
/// decimals would be needed.
[[nodiscard]] std::string FormatLengthLike(int hundredthMm, std::string_view example);

/// Tenths of something as a number: "14", "10.5".
[[nodiscard]] std::string FormatTenths(int tenths);

} // namespace ReferenceHost
