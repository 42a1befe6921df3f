#pragma once

#include "tests/model/Operation.h"

#include <cstddef>
#include <optional>
#include <string>

namespace LibraryModel
{

/// Where the library and the model first differ.
struct Discrepancy
{
    std::size_t step;    ///< From 0.
    std::string message; ///< What the model expected there, and what the library did.
};

/// Runs a sequence on both sides, each new, and compares them after each step: the answer, every line that
/// the host wrote, how many styles and trees of list nodes live, and unless the step says otherwise all that
/// can be read.
///
/// @returns nothing when they were alike to the end.
[[nodiscard]] std::optional<Discrepancy> FindDiscrepancy(const Sequence& sequence);

} // namespace LibraryModel
