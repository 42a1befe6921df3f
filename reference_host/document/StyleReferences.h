#pragma once

#include "reference_host/document/SavedPart.h"

#include <string>
#include <unordered_map>

namespace ReferenceHost
{

/// Follows new names of named graphic styles wherever a text refers to them by the old ones: as a parent, or
/// directly from a shape. What another edit has given another style already keeps that.
///
/// @param renamed the new encoded names by the old ones.
void RenameStyleReferences(const std::unordered_map<std::string, std::string>& renamed, SavedPart& part);

} // namespace ReferenceHost
