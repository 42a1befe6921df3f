#include "bench/refresh/CalledStyles.h"

#include "bench/workload/RefreshSum.h"

#include <cstdint>

namespace Bench
{

bool CalledStyles::IsAmbiguous(std::size_t property) const
{
    const double* reference = nullptr;
    for (std::size_t index = 0; index < panel->GetNumTargetStyles(); ++index)
    {
        const double& value = GetProperty(dense, panel->GetTargetStyle(index), property);
        if (reference == nullptr)
            reference = &value;
        else if (!AreEqual(*reference, value))
            return true;
    }
    return false;
}

double CalledStyles::Refresh() const
{
    RefreshSum sum;
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
    {
        const bool isAmbiguous = IsAmbiguous(property);
        const bool overrides = panel->DoesOverrideProperty(dense.firstObject, property);
        Origin origin = overrides ? Origin::Overridden : Origin::Inherited;
        for (std::size_t target = dense.firstObject + 1;
             target < dense.styles.size() && origin != Origin::Ambiguous; ++target)
        {
            const std::size_t style = GetStyleOrSubstyle(dense, target, panel->GetCategory());
            if (GetParent(dense, GetOwner(dense, style)) < 0)
            {
                origin = Origin::AmbiguousParent;
                break;
            }
            if (panel->DoesOverrideProperty(style, property) != overrides)
                origin = Origin::Ambiguous;
        }
        sum.Add(origin,
                isAmbiguous ? std::nullopt : std::optional(GetProperty(dense, dense.firstObject, property)));
    }
    return sum.Get();
}

} // namespace Bench
