#pragma once

#include "reference_host/document/RelativeValues.h"
#include "reference_host/document/TextSettling.h"
#include "reference_host/history/IHistoryDocument.h"

namespace ReferenceHost
{

/// What in a drawing depends on styles that change, brought in line when a step of its history ends.
class DrawingSettling final : public IHistoryDocument
{
public:
    /// Borrows everything.
    DrawingSettling(const PropertyMappings& table, CascadeStyles& cascades,
                    std::deque<DrawingObject>& objects)
        : text(table, cascades), relativeValues(table, cascades, objects)
    {
    }

    void PrepareForChanges() override { relativeValues.Fix(); }

    void Settle(const StepChanges& changes) override
    {
        text.Settle(changes);
        relativeValues.MakeConcerned(changes);
    }

private:
    TextSettling text;
    RelativeValues relativeValues;
};

} // namespace ReferenceHost
