#pragma once

#include "tests/reference_host/document/FlatDrawing.h"

#include <string>

/// A package with this drawing in it.
[[nodiscard]] std::string PackageOf(const FlatDrawing& drawing);
