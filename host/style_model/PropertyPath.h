#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"

#include <set>
#include <vector>

namespace Styles
{

/// The keys from the outermost category down to a property.
using PropertyPath = std::vector<PropertyKey>;

/// A list of paths, in an order that means something only where the operation says so.
using PropertyPaths = std::vector<PropertyPath>;

/// The path of one key.
[[nodiscard]] STYLEPROPERTIES_HOST_API PropertyPath MakePath(const PropertyKey& key);

/// The path that leads through `key` and then along `path`.
[[nodiscard]] STYLEPROPERTIES_HOST_API PropertyPath MakePath(const PropertyKey& key,
                                                             const PropertyPath& path);

/// One path of one key for each key, in the order of the set.
[[nodiscard]] STYLEPROPERTIES_HOST_API PropertyPaths MakePaths(const std::set<PropertyKey>& keys);

} // namespace Styles
