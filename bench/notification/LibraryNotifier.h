#pragma once

#include "bench/library/StylePanel.h"
#include "bench/notification/NotifiedRow.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>

namespace Bench
{

/// A panel of the library that tells its listeners.
class LibraryNotifier
{
public:
    /// Adds that many listeners.
    LibraryNotifier(std::size_t listeners, ListenedName listened);

    /// Tells of one row.
    ///
    /// @returns how many listeners heard it.
    std::size_t Notify();

private:
    StylePanel panel;
    OvxStringT notifiedName;
    std::size_t heard = 0;
};

} // namespace Bench
