#include "bench/refresh/MapStyles.h"

#include "bench/workload/RefreshSum.h"

#include <algorithm>

namespace Bench
{

MapStyles::MapStyles(const StyleTree& tree) : map(tree)
{
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
        names.push_back(StyleTree::NameOf(property));
}

bool MapStyles::IsAmbiguous(const std::string& name) const
{
    const double first = MapTree::Effective(map.objects.front(), name);
    return std::any_of(map.objects.begin() + 1, map.objects.end(),
                       [&](const MapTree::MapStyle* object)
                       { return MapTree::Effective(object, name) != first; });
}

double MapStyles::Refresh() const
{
    RefreshSum sum;
    for (const std::string& name : names)
    {
        const bool isAmbiguous = IsAmbiguous(name);
        const bool overrides = map.objects.front()->values.contains(name);
        Origin origin = overrides ? Origin::Overridden : Origin::Inherited;
        for (std::size_t index = 1; index < map.objects.size() && origin != Origin::Ambiguous; ++index)
        {
            if (map.objects[index]->parent == nullptr)
            {
                origin = Origin::AmbiguousParent;
                break;
            }
            if (map.objects[index]->values.contains(name) != overrides)
                origin = Origin::Ambiguous;
        }
        sum.Add(origin,
                isAmbiguous ? std::nullopt : std::optional(MapTree::Effective(map.objects.front(), name)));
    }
    return sum.Get();
}

} // namespace Bench
