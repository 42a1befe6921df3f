#pragma once

#include "host/Export.h"
#include "host/style_model/IModifyStyleOverrides.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

/// Applies one change to many styles.
class STYLEPROPERTIES_HOST_API IMultipleStyleModifier
{
public:
    virtual ~IMultipleStyleModifier() = default;

    /// Opens an operation. Each call is followed by one End, also when something fails in between; pairs may
    /// nest.
    virtual void Begin() = 0;

    /// Closes the operation that the last open Begin opened.
    virtual void End() = 0;

    /// Writes what `changeStyle` holds.
    ///
    /// @param targets        the styles to write to, in order; null entries are passed over.
    /// @param objects        for styles that a document object owns, that object (a WNodeHandle* as a
    /// number).
    /// @param paths          what to write to the targets. A path at which `changeStyle` holds nothing is
    /// cleared.
    /// @param changeStyle    the values; may be null, then nothing is written.
    /// @param overridePaths  what to write as overrides of the objects in `objects`.
    /// @param reserved       always false.
    /// @param bound          the targets are the objects' own styles, not named ones.
    /// @param transactionOverrides what the running transaction overrides; null when none, or unless `bound`.
    virtual void Modify(const std::vector<Styles::Style*>& targets,
                        const std::map<Styles::Style*, std::size_t>& objects,
                        const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> changeStyle,
                        const Styles::PropertyPaths& overridePaths, bool reserved, bool bound,
                        Styles::IModifyStyleOverrides* transactionOverrides) = 0;
};
