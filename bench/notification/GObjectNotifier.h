#pragma once

#include "bench/notification/NotifiedRow.h"

#include <glib-object.h>

#include <cstddef>

namespace Bench
{

/// Functions that are connected to the "notify" signal of a GObject, each for the name of one property.
class GObjectNotifier
{
public:
    /// Adds that many listeners.
    GObjectNotifier(std::size_t listeners, ListenedName listened);

    GObjectNotifier(const GObjectNotifier&) = delete;
    GObjectNotifier& operator=(const GObjectNotifier&) = delete;
    ~GObjectNotifier();

    /// Tells of one row.
    ///
    /// @returns how many listeners heard it.
    std::size_t Notify();

private:
    GObject* object;
    GParamSpec* notified; ///< Owned by the class.
    std::size_t heard = 0;
};

} // namespace Bench
