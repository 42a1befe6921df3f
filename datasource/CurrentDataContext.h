#pragma once

#include <optional>

class IDataContext;

/// The host's current data context, which is its object-properties context; borrowed, may be null.
///
/// Nothing while the host has no user interface or no panel host to ask.
[[nodiscard]] std::optional<IDataContext*> FindCurrentDataContext();
