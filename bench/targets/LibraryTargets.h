#pragma once

#include "bench/library/LibraryTree.h"
#include "bench/library/StylePanel.h"
#include "bench/workload/StyleTree.h"
#include "reference_host/services/DataContext.h"

#include <array>
#include <cstddef>

namespace Bench
{

/// A panel of the library over the reference host that gets targets, and two more with targets of their own.
class LibraryTargets
{
public:
    explicit LibraryTargets(const StyleTree& styles);
    LibraryTargets(const LibraryTargets&) = delete;
    LibraryTargets& operator=(const LibraryTargets&) = delete;
    ~LibraryTargets();

    /// Ties the two panels to the first, whose targets become those of all three.
    void TieSiblings();

    /// Hands all objects in.
    ///
    /// @returns how many targets the panel has then.
    std::size_t SetTargets();

private:
    LibraryTree tree;
    ReferenceHost::DataContext objectProperties{nullptr, nullptr}; ///< Of other panels; those take no part.
    std::array<StylePanel, 2> siblings;
    StylePanel panel;
};

} // namespace Bench
