#pragma once

#include "bench/workload/StyleTree.h"

#include <cstddef>
#include <vector>

namespace Bench
{

/// The floor: the targets and those of the siblings are copied into one list, after it was looked up for each
/// which of its parts is meant.
class CopiedTargets
{
public:
    explicit CopiedTargets(const StyleTree& tree);

    /// Adds the targets of two siblings from now on.
    void TieSiblings();

    /// Hands all objects in.
    ///
    /// @returns how many targets there are then.
    std::size_t SetTargets();

private:
    struct WholeStyle
    {
        int category = 0;
        const WholeStyle* part = nullptr; ///< Of the category that is edited.
    };

    std::vector<WholeStyle> styles;
    std::vector<WholeStyle> parts;
    std::vector<const WholeStyle*> objects;
    std::vector<const WholeStyle*> targets;
    std::vector<const std::vector<const WholeStyle*>*> siblings;
};

} // namespace Bench
