#pragma once

#include "bench/workload/StyleTree.h"

#include <string>

namespace Bench
{

/// A flat drawing whose styles are those of a tree: the styles of the first levels are named ones, and each
/// object is a shape with an automatic style of its own. Places and sizes of the shapes come from the fixed
/// hash; every third one has a short text.
///
/// The 40 properties are attributes that drawings have, of shapes, paragraphs and characters; some of them no
/// panel shows. Styles and shapes begin lines of their own.
[[nodiscard]] std::string WriteFlatDrawing(const StyleTree& tree);

} // namespace Bench
