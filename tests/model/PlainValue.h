#pragma once

#include "tests/model/Vocabulary.h"

#include <string>
#include <variant>

namespace LibraryModel
{

/// A colour: what it looks like, and the palette entry that it refers to, if any.
struct PlainColor
{
    int rgb = 0;       ///< 0xRRGGBB.
    std::string entry; ///< Empty for a plain colour.

    friend bool operator==(const PlainColor&, const PlainColor&) = default;
};

/// What a property holds; nothing in its first state.
using PlainValue = std::variant<std::monostate, int, std::string, Key, PlainColor>;

[[nodiscard]] inline bool HoldsNothing(const PlainValue& value)
{
    return std::holds_alternative<std::monostate>(value);
}

} // namespace LibraryModel
