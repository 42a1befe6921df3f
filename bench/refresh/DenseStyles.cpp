#include "bench/refresh/DenseStyles.h"

#include "bench/workload/RefreshSum.h"

namespace Bench
{

bool DenseStyles::IsAmbiguous(std::size_t property) const
{
    const double first = dense.Effective(dense.firstObject, property);
    for (std::size_t style = dense.firstObject + 1; style < dense.styles.size(); ++style)
    {
        if (dense.Effective(style, property) != first)
            return true;
    }
    return false;
}

double DenseStyles::Refresh() const
{
    RefreshSum sum;
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
    {
        const bool isAmbiguous = IsAmbiguous(property);
        const bool overrides = dense.Sets(dense.firstObject, property);
        Origin origin = overrides ? Origin::Overridden : Origin::Inherited;
        for (std::size_t style = dense.firstObject + 1;
             style < dense.styles.size() && origin != Origin::Ambiguous; ++style)
        {
            if (dense.styles[style].parent < 0)
            {
                origin = Origin::AmbiguousParent;
                break;
            }
            if (dense.Sets(style, property) != overrides)
                origin = Origin::Ambiguous;
        }
        sum.Add(origin,
                isAmbiguous ? std::nullopt : std::optional(dense.Effective(dense.firstObject, property)));
    }
    return sum.Get();
}

} // namespace Bench
