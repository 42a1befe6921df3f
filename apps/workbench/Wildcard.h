#pragma once

#include "host/utils/OvxStringViewT.h"

#include <cstddef>

namespace Workbench
{

/// Tells whether the whole of `text` fits `pattern`, letters compared as they are.
///
/// "*" stands for any run of characters, none included, and "?" for any one. "[abc]" stands for one of the
/// characters, "[a-z]" for one of a range, "[!abc]" or "[^abc]" for one that is not among them; a "]"
/// directly after the opening belongs to the characters. A "[" that is never closed stands for itself. So
/// "[*]" is the way to mean a star. Takes time in proportion to the product of both lengths at the worst.
[[nodiscard]] bool MatchesWildcard(OvxStringViewT pattern, OvxStringViewT text);

/// The place just behind the bracket that closes the one at `opening`; `opening` itself when none does.
[[nodiscard]] std::size_t EndOfBrackets(OvxStringViewT pattern, std::size_t opening);

} // namespace Workbench
