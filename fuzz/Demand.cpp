#include "fuzz/Demand.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iostream>

namespace Fuzz
{
namespace
{

/// How much of two texts that differ is shown, before and behind the place.
constexpr std::size_t kShownBefore = 120;
constexpr std::size_t kShown = 400;

std::string Around(const std::string& text, std::size_t place)
{
    return text.substr(place - std::min(place, kShownBefore), kShown);
}

} // namespace

void Demand(bool holds, const std::string& promise)
{
    if (holds)
        return;
    std::cerr << "Broken promise: " << promise << std::endl;
    std::abort();
}

void DemandEqual(const std::string& actual, const std::string& expected, const std::string& promise)
{
    if (actual == expected)
        return;
    const auto shorter = static_cast<std::ptrdiff_t>(std::min(actual.size(), expected.size()));
    const auto place = static_cast<std::size_t>(
        std::mismatch(actual.begin(), actual.begin() + shorter, expected.begin()).first - actual.begin());
    Demand(false, promise + "\n-- at " + std::to_string(place) + " expected:\n" + Around(expected, place) +
                      "\n-- found:\n" + Around(actual, place));
}

} // namespace Fuzz
