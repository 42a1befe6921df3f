#pragma once

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/PropertyMappings.h"
#include "reference_host/history/StepChanges.h"

#include <deque>
#include <set>

namespace ReferenceHost
{

/// Keeps the values that the file gives shapes and their text as a part of an inherited one.
///
/// In the model such a value is a plain one, worked out when the style is made. It must be the same whenever
/// that is, so it is worked out before anything changes; and where the inherited value changes the style is
/// made, so that saving finds what the file says no longer true.
class RelativeValues
{
public:
    /// Borrows everything.
    RelativeValues(const PropertyMappings& properties, CascadeStyles& cascadeStyles,
                   std::deque<DrawingObject>& drawingObjects);

    /// For before the first change.
    void Fix();

    /// Makes the styles with values that are a part of what changed.
    void MakeConcerned(const StepChanges& changes);

private:
    void AddChangedRows(std::set<std::size_t>& rows, const StyleImage& image) const;

    const PropertyMappings& table;
    CascadeStyles& cascades;
    std::deque<DrawingObject>& objects;
    bool hasAny = false; ///< Whether the file gives any such value at all.
};

} // namespace ReferenceHost
