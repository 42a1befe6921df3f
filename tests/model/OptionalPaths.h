#pragma once

#include "tests/model/Vocabulary.h"

#include <optional>

namespace LibraryModel
{

/// A list of paths that may be missing, as the library takes it: by a pointer.
class HostPaths
{
public:
    explicit HostPaths(const std::optional<Paths>& paths)
    {
        if (paths.has_value())
            converted = ToHost(*paths);
    }

    /// Null for a missing list; valid as long as this.
    [[nodiscard]] const Styles::PropertyPaths* Pointer() const
    {
        return converted.has_value() ? &*converted : nullptr;
    }

private:
    std::optional<Styles::PropertyPaths> converted;
};

} // namespace LibraryModel
