#pragma once

#include "bench/workload/StyleTree.h"
#include "host/style_model/PropertyKey.h"
#include "reference_host/document/Drawing.h"

#include <memory>
#include <vector>

namespace Bench
{

/// Opens a flat drawing with the styles of a tree: those of the first levels are named styles, and each
/// object is a rectangle with an automatic style of its own. `keys` are the properties by their numbers; they
/// become properties of the fill, and their values are kept as percentages.
[[nodiscard]] std::unique_ptr<ReferenceHost::Drawing>
OpenStyledDrawing(const StyleTree& tree, const std::vector<Styles::PropertyKey>& keys);

} // namespace Bench
