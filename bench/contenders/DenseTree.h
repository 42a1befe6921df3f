#pragma once

#include "bench/workload/StyleTree.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Bench
{

/// The styles of a StyleTree by numbers: values side by side by the number of the property, presence in bits.
struct DenseTree
{
    struct DenseStyle
    {
        std::uint64_t present = 0; ///< Bit by property.
        std::int32_t parent = -1;  ///< The number of the style that this one inherits from; -1 for none.
        std::array<double, StyleTree::kProperties> values{};
    };

    explicit DenseTree(const StyleTree& tree);

    [[nodiscard]] bool Sets(std::size_t style, std::size_t property) const
    {
        return (styles[style].present >> property & 1U) != 0;
    }

    [[nodiscard]] double Effective(std::size_t style, std::size_t property) const
    {
        while (!Sets(style, property))
            style = static_cast<std::size_t>(styles[style].parent);
        return styles[style].values[property];
    }

    std::vector<DenseStyle> styles; ///< Level by level.
    std::size_t firstObject = 0;
};

} // namespace Bench
