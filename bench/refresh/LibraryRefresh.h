#pragma once

#include "bench/library/LibraryTree.h"
#include "bench/library/StylePanel.h"
#include "bench/workload/StyleTree.h"
#include "host/utils/OvxStringT.h"

#include <vector>

namespace Bench
{

/// A panel of the library over the reference host.
class LibraryRefresh
{
public:
    explicit LibraryRefresh(const StyleTree& tree);

    /// Asks of each property whether the objects agree and where their values come from, and reads the value
    /// where they agree.
    [[nodiscard]] double Refresh() const;

private:
    LibraryTree tree;
    StylePanel panel;
    std::vector<OvxStringT> names;
};

} // namespace Bench
