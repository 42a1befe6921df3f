#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/StringPool.h"

#include <array>
#include <cstddef>

namespace ReferenceHost
{

/// The pooled texts of the keys that are constants.
///
/// They are data of the host library and not made by any initialiser, so that the keys that point to them can
/// be used before one has run. The pool knows them from its first use on.
enum class ConstantText : std::size_t
{
    Style,
    Fill,
    Outline,
    Paragraph,
    Character,
    Wildcard, ///< "*"
    Count
};

/// The texts by their numbers.
extern const std::array<Styles::StringPool::Text, static_cast<std::size_t>(ConstantText::Count)>
    kConstantTexts;

/// The key of a constant text.
[[nodiscard]] constexpr Styles::PropertyKey ConstantKey(ConstantText text)
{
    return Styles::PooledString<Styles::StringPool>(&kConstantTexts[static_cast<std::size_t>(text)]);
}

} // namespace ReferenceHost
