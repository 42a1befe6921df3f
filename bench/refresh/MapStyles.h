#pragma once

#include "bench/contenders/MapTree.h"
#include "bench/workload/StyleTree.h"

#include <string>
#include <vector>

namespace Bench
{

/// What a team writes itself: a map from names to values in each style, and a pointer to its parent.
class MapStyles
{
public:
    explicit MapStyles(const StyleTree& tree);

    /// Asks of each property whether the objects agree and where their values come from, and reads the value
    /// where they agree.
    [[nodiscard]] double Refresh() const;

private:
    [[nodiscard]] bool IsAmbiguous(const std::string& name) const;

    MapTree map;
    std::vector<std::string> names;
};

} // namespace Bench
