#include "bench/refresh/PanelCalls.h"

namespace Bench
{

namespace
{

class Panel final : public PanelCalls
{
public:
    explicit Panel(const DenseTree& styles) : tree(styles) {}

    [[nodiscard]] std::size_t GetNumTargetStyles() const override
    {
        return tree.styles.size() - tree.firstObject;
    }

    [[nodiscard]] std::size_t GetTargetStyle(std::size_t index) const override
    {
        const PanelCalls& self = *this;
        return GetStyleOrSubstyle(tree, tree.firstObject + index, self.GetCategory());
    }

    [[nodiscard]] std::size_t GetCategory() const override { return 0; }

    [[nodiscard]] bool DoesOverrideProperty(std::size_t style, std::size_t property) const override
    {
        return DoesOverride(tree, style, property);
    }

private:
    const DenseTree& tree;
};

} // namespace

std::unique_ptr<PanelCalls> MakePanel(const DenseTree& tree)
{
    return std::make_unique<Panel>(tree);
}

} // namespace Bench
