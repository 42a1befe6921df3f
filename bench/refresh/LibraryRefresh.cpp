#include "bench/refresh/LibraryRefresh.h"

#include "bench/workload/RefreshSum.h"

namespace Bench
{

LibraryRefresh::LibraryRefresh(const StyleTree& styles) : tree(styles)
{
    for (const Styles::PropertyKey& key : tree.Keys())
        names.push_back(key.GetString());
    panel.FinishConstruction();
    panel.SetTargetStyle(tree.Objects(), false, Styles::PropertyPath(), {});
}

double LibraryRefresh::Refresh() const
{
    RefreshSum sum;
    for (std::size_t property = 0; property < names.size(); ++property)
    {
        const Styles::PropertyKey& key = tree.Keys()[property];
        const bool isAmbiguous = panel.IsAmbiguous(key);
        const auto origin = static_cast<Origin>(panel.GetActivePropertyState(names[property]));
        std::optional<double> agreed;
        if (!isAmbiguous)
            agreed = panel.GetTargetStyle(0)->GetProperty(key).Get<int>();
        sum.Add(origin, agreed);
    }
    return sum.Get();
}

} // namespace Bench
