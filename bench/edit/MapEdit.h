#pragma once

#include "bench/contenders/MapTree.h"
#include "bench/workload/StyleTree.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Bench
{

/// What a team writes itself: a map from names to values in each style, and for each step a list of what the
/// objects set before and after it.
class MapEdit
{
public:
    explicit MapEdit(const StyleTree& tree) : map(tree) {}

    /// Writes to all objects in one step.
    void Write();

    void Undo();
    void Redo();

    /// Takes the last step back for good.
    void Forget();

    [[nodiscard]] double GetSample() const;

private:
    struct Change
    {
        MapTree::MapStyle* style;
        std::string name;
        std::optional<double> before;
        double after;
    };

    using Step = std::vector<Change>;

    MapTree map;
    std::vector<Step> steps;
    std::size_t done = 0; ///< How many of the steps are not undone.
};

} // namespace Bench
