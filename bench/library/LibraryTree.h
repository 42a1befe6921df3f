#pragma once

#include "bench/workload/StyleTree.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"

#include <memory>
#include <vector>

namespace Bench
{

/// The styles of a StyleTree in the reference host: whole styles with their four substyles, as drawings have
/// them, whose fill holds the values.
class LibraryTree
{
public:
    explicit LibraryTree(const StyleTree& tree);

    /// The styles of the last level, in order.
    [[nodiscard]] const std::vector<Styles::Style*>& Objects() const noexcept { return objects; }

    /// The keys of the properties, by their numbers.
    [[nodiscard]] const std::vector<Styles::PropertyKey>& Keys() const noexcept { return keys; }

private:
    std::vector<std::unique_ptr<Styles::Style>> styles; ///< Level by level.
    std::vector<Styles::Style*> objects;
    std::vector<Styles::PropertyKey> keys;
};

} // namespace Bench
