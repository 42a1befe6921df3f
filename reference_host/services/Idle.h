#pragma once

#include "host/Export.h"

#include <cstddef>

namespace ReferenceHost
{

/// One idle step of the application: delivers the events that wait, then destroys the data sources that were
/// ended while notifications were being delivered.
///
/// May be called from inside a notification, by a dialog that runs its own loop: events are delivered then,
/// and the data sources wait for the next step outside. Writes nothing and opens nothing by itself.
///
/// @returns how many events were delivered.
/// @throws whatever the first failing listener threw, after everything was delivered and destroyed.
STYLEPROPERTIES_HOST_API std::size_t RunIdle();

} // namespace ReferenceHost
