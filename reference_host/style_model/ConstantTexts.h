#pragma once

#include "host/style_model/StringPool.h"

#include <array>

namespace ReferenceHost
{

/// The pooled texts of the keys that are constants.
///
/// They are data of the host library and not made by any initialiser, so that the keys that point to them can
/// be used before one has run. The pool knows them from its first use on.
inline constexpr std::size_t kConstantTextCount = 5;

/// In the order "style", "fill", "outline", "paragraph", "character".
extern const std::array<Styles::StringPool::Text, kConstantTextCount> kConstantTexts;

} // namespace ReferenceHost
