#pragma once

#include <cstddef>

/// How long a test runs: a number that the environment gives under this name, or else the one that every
/// ordinary run uses.
[[nodiscard]] std::size_t RunLength(const char* variable, std::size_t ordinary);
