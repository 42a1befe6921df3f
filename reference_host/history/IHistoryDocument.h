#pragma once

namespace ReferenceHost
{

class StepChanges;

/// What a history asks of the document that it belongs to.
class IHistoryDocument
{
public:
    /// Called once, before the first change: what is made later from what the file says, and depends on
    /// styles that may change now, is worked out here. Changes nothing.
    virtual void PrepareForChanges() = 0;

    /// Called when a step is about to close, with what changed in it: brings in line what depends on that.
    /// The changes made here belong to the step.
    ///
    /// What it throws takes the whole step back.
    virtual void Settle(const StepChanges& changes) = 0;

protected:
    ~IHistoryDocument() = default;
};

} // namespace ReferenceHost
