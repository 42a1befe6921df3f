#include "bench/contenders/DenseTree.h"

namespace Bench
{

DenseTree::DenseTree(const StyleTree& tree)
{
    std::size_t firstAbove = 0;
    for (std::size_t level = 0; level < StyleTree::kLevels; ++level)
    {
        const std::size_t first = styles.size();
        for (std::size_t index = 0; index < tree.CountAt(level); ++index)
        {
            DenseStyle& style = styles.emplace_back();
            if (level > 0)
                style.parent = static_cast<std::int32_t>(firstAbove + tree.ParentOf(level, index));
            for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
            {
                if (const auto value = tree.OwnValue(level, index, property))
                {
                    style.present |= std::uint64_t{1} << property;
                    style.values[property] = *value;
                }
            }
        }
        firstAbove = first;
    }
    firstObject = firstAbove;
}

} // namespace Bench
