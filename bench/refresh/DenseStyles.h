#pragma once

#include "bench/contenders/DenseTree.h"
#include "bench/workload/StyleTree.h"

#include <cstddef>

namespace Bench
{

/// The floor: styles by number, properties by number, presence in bits, values side by side, and nothing
/// between the loop and its data.
class DenseStyles
{
public:
    explicit DenseStyles(const StyleTree& tree) : dense(tree) {}

    /// Asks of each property whether the objects agree and where their values come from, and reads the value
    /// where they agree.
    [[nodiscard]] double Refresh() const;

private:
    [[nodiscard]] bool IsAmbiguous(std::size_t property) const;

    DenseTree dense;
};

} // namespace Bench
