#pragma once

#include "bench/contenders/DenseTree.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace Bench
{

/// What a panel asks of itself for each target and property; a derived panel may answer otherwise.
class PanelCalls
{
public:
    PanelCalls() = default;
    PanelCalls(const PanelCalls&) = delete;
    PanelCalls& operator=(const PanelCalls&) = delete;
    virtual ~PanelCalls() = default;

    [[nodiscard]] virtual std::size_t GetNumTargetStyles() const = 0;
    [[nodiscard]] virtual std::size_t GetTargetStyle(std::size_t index) const = 0;
    [[nodiscard]] virtual std::size_t GetCategory() const = 0;
    [[nodiscard]] virtual bool DoesOverrideProperty(std::size_t style, std::size_t property) const = 0;
};

/// A panel on the objects of a tree, which is borrowed.
[[nodiscard]] std::unique_ptr<PanelCalls> MakePanel(const DenseTree& tree);

// What it asks of its host. Styles and categories are numbers; each style is its own owner.

[[nodiscard]] std::size_t GetStyleOrSubstyle(const DenseTree& tree, std::size_t style,
                                             const std::size_t& category);
[[nodiscard]] const double& GetProperty(const DenseTree& tree, std::size_t style, std::size_t property);
[[nodiscard]] bool AreEqual(const double& left, const double& right);
[[nodiscard]] std::size_t GetOwner(const DenseTree& tree, std::size_t style);
[[nodiscard]] std::int32_t GetParent(const DenseTree& tree, std::size_t style);
[[nodiscard]] bool DoesOverride(const DenseTree& tree, std::size_t style, std::size_t property);

} // namespace Bench
