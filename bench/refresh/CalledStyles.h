#pragma once

#include "bench/contenders/DenseTree.h"
#include "bench/refresh/PanelCalls.h"
#include "bench/workload/StyleTree.h"

#include <cstddef>
#include <memory>

namespace Bench
{

/// The floor's data, asked for by the calls that a refresh has to make: five virtual ones for each target and
/// property, and seven into the host. What it costs more than the floor nobody can save who keeps them.
class CalledStyles
{
public:
    explicit CalledStyles(const StyleTree& tree) : dense(tree), panel(MakePanel(dense)) {}

    /// As the floor's.
    [[nodiscard]] double Refresh() const;

private:
    [[nodiscard]] bool IsAmbiguous(std::size_t property) const;

    DenseTree dense;
    std::unique_ptr<PanelCalls> panel; ///< Never null.
};

} // namespace Bench
