#pragma once

#include "bench/workload/StyleTree.h"

#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

namespace Bench
{

/// The styles of a StyleTree as a team writes them itself: a map from names to values in each, and a pointer
/// to its parent.
struct MapTree
{
    struct MapStyle
    {
        std::unordered_map<std::string, double> values;
        const MapStyle* parent = nullptr;
    };

    explicit MapTree(const StyleTree& tree);

    /// The value of a property that the style or one of its parents sets.
    [[nodiscard]] static double Effective(const MapStyle* style, const std::string& name);

    std::deque<MapStyle> styles; ///< A deque keeps the addresses of what it holds.
    std::vector<MapStyle*> objects;
};

} // namespace Bench
