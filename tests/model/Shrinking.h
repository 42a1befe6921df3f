#pragma once

#include "tests/model/Operation.h"

#include <functional>
#include <string>

namespace LibraryModel
{

/// Leaves out of a failing sequence whatever it fails without: ever smaller pieces, until no single step can
/// go.
[[nodiscard]] Sequence Shrink(Sequence sequence, const std::function<bool(const Sequence&)>& fails);

/// The steps as one would write them in a test, one a line.
[[nodiscard]] std::string TextOf(const Sequence& sequence);

} // namespace LibraryModel
