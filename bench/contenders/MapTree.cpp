#include "bench/contenders/MapTree.h"

#include <utility>

namespace Bench
{

MapTree::MapTree(const StyleTree& tree)
{
    for (std::size_t level = 0; level < StyleTree::kLevels; ++level)
    {
        const std::vector<MapStyle*> above = std::exchange(objects, {});
        for (std::size_t index = 0; index < tree.CountAt(level); ++index)
        {
            MapStyle& style = styles.emplace_back();
            if (level > 0)
                style.parent = above[tree.ParentOf(level, index)];
            for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
            {
                if (const auto value = tree.OwnValue(level, index, property))
                    style.values.emplace(StyleTree::NameOf(property), *value);
            }
            objects.push_back(&style);
        }
    }
}

double MapTree::Effective(const MapStyle* style, const std::string& name)
{
    auto found = style->values.find(name);
    while (found == style->values.end())
    {
        style = style->parent;
        found = style->values.find(name);
    }
    return found->second;
}

} // namespace Bench
