#include "bench/targets/CopiedTargets.h"

namespace Bench
{

CopiedTargets::CopiedTargets(const StyleTree& tree)
    : styles(tree.CountAt(StyleTree::kObjectLevel)), parts(styles.size())
{
    for (std::size_t index = 0; index < styles.size(); ++index)
    {
        styles[index].part = &parts[index];
        objects.push_back(&styles[index]);
    }
}

void CopiedTargets::TieSiblings()
{
    siblings.assign(2, &objects);
}

std::size_t CopiedTargets::SetTargets()
{
    targets.clear();
    targets.reserve(objects.size() * (1 + siblings.size()));
    targets = objects;
    for (const auto* sibling : siblings)
    {
        for (const WholeStyle* style : *sibling)
            targets.push_back(style->part);
    }
    return targets.size();
}

} // namespace Bench
