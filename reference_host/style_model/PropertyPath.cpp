#include "host/style_model/PropertyPath.h"

namespace Styles
{

PropertyPath MakePath(const PropertyKey& key)
{
    return {key};
}

PropertyPath MakePath(const PropertyKey& key, const PropertyPath& path)
{
    PropertyPath result;
    result.reserve(path.size() + 1);
    result.push_back(key);
    result.insert(result.end(), path.begin(), path.end());
    return result;
}

PropertyPaths MakePaths(const std::set<PropertyKey>& keys)
{
    PropertyPaths paths;
    paths.reserve(keys.size());
    for (const PropertyKey& key : keys)
        paths.push_back(MakePath(key));
    return paths;
}

} // namespace Styles
