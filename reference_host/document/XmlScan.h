#pragma once

#include "reference_host/document/ProgressMeter.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// The deepest nesting of elements that is read.
inline constexpr std::size_t kDeepestNesting = 256;

/// The most elements, attributes and pieces of text together, and the most bytes of an attribute's value: the
/// tree of a text, and what is made of a value, take many times their room.
inline constexpr std::size_t kMostNodes = 3000000;
inline constexpr std::size_t kLongestValue = 16U << 20U;

/// The most attributes of an element. Those of drawings have some twenty; looking one up takes time with
/// each.
inline constexpr std::size_t kMostAttributes = 1000;

/// The most namespaces that are declared at one place, and in a whole text. Drawings declare some forty in
/// one place; looking names up takes time with each.
inline constexpr std::size_t kMostNamespacesInForce = 256;
inline constexpr std::size_t kMostNamespaces = 1000000;

/// Checks in one pass that `text` is XML that can be trusted: UTF-8 throughout, well-formed, its namespaces
/// declared, no attribute twice in an element, no DOCTYPE, and nothing beyond the limits above.
///
/// The parser that builds the tree is fast because it believes its input; this pass is what it may believe.
/// Texts declared in another encoding than UTF-8 are refused and not converted, because edits are spliced
/// into the bytes as they stand in the file.
///
/// @param label    names the file, and the entry of an archive, in errors.
/// @param progress is started with the length of the text.
/// @throws DocumentError with the line, and with the element where one is open.
void ScanXml(std::string_view text, const std::string& label, ProgressSpan progress = {});

} // namespace ReferenceHost
