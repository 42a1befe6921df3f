#pragma once

#include "bench/contenders/DenseTree.h"
#include "bench/workload/StyleTree.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Bench
{

/// The floor: values side by side by number, presence in bits, and for each step what the objects set before,
/// side by side as well.
class DenseEdit
{
public:
    explicit DenseEdit(const StyleTree& tree) : dense(tree) {}

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
        std::uint32_t style;
        bool isSet; ///< Whether the style sets the property when this is put in place.
        double value;
    };

    struct Step
    {
        std::size_t property = 0;
        std::vector<Change> changes;
    };

    void Exchange(Step& step);

    DenseTree dense;
    std::vector<Step> steps;
    std::size_t done = 0; ///< How many of the steps are not undone.
};

} // namespace Bench
