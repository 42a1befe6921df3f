// Apart from those who call: no compiler sees through calls into a library.

#include "bench/refresh/PanelCalls.h"

namespace Bench
{

std::size_t GetStyleOrSubstyle(const DenseTree& /*tree*/, std::size_t style, const std::size_t& category)
{
    return style + category;
}

const double& GetProperty(const DenseTree& tree, std::size_t style, std::size_t property)
{
    while (!tree.Sets(style, property))
        style = static_cast<std::size_t>(tree.styles[style].parent);
    return tree.styles[style].values[property];
}

bool AreEqual(const double& left, const double& right)
{
    return left == right;
}

std::size_t GetOwner(const DenseTree& /*tree*/, std::size_t style)
{
    return style;
}

std::int32_t GetParent(const DenseTree& tree, std::size_t style)
{
    return tree.styles[style].parent;
}

bool DoesOverride(const DenseTree& tree, std::size_t style, std::size_t property)
{
    return tree.Sets(style, property);
}

} // namespace Bench
