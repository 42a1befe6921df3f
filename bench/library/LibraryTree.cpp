#include "bench/library/LibraryTree.h"

#include "bench/library/WholeStyle.h"
#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"

#include <utility>

namespace Bench
{

LibraryTree::LibraryTree(const StyleTree& tree)
{
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
        keys.emplace_back(
            Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(StyleTree::NameOf(property))));

    for (std::size_t level = 0; level < StyleTree::kLevels; ++level)
    {
        const std::vector<Styles::Style*> above = std::exchange(objects, {});
        for (std::size_t index = 0; index < tree.CountAt(level); ++index)
        {
            styles.push_back(MakeWholeStyle(level == 0 ? nullptr : above[tree.ParentOf(level, index)]));
            objects.push_back(styles.back().get());
            Styles::Style& fill = *objects.back()->GetSubstyle(Styles::FillStyleCategoryName, false);
            for (std::size_t property = 0; property < keys.size(); ++property)
            {
                if (const auto value = tree.OwnValue(level, index, property))
                    fill.SetProperty(keys[property], OvxUtils::Any(*value));
            }
        }
    }
}

} // namespace Bench
