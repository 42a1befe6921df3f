#pragma once

#include "tests/faults/FailingAllocations.h"
#include "tests/faults/PanelOperations.h"
#include "tests/host_pieces/HostPieces.h"

#include <optional>
#include <string>

/// What must be the same before and after, whatever fails in between.
class FailureBalance
{
public:
    /// Expects all as it was when this was made; says nothing in a test that has failed before.
    void ExpectNow() const;

private:
    std::size_t allocations = FailingAllocations::CountLive();
    std::size_t styles = HostPieces::CountLiveStyles();
    std::optional<std::size_t> lists = HostPieces::CountLiveXmlTrees();
};

/// What may be seen of a subject on which an operation has failed: what it shows without the operation, and
/// what it shows after it.
class FailureOutcomes
{
public:
    explicit FailureOutcomes(const PanelOperation& operation);

    /// Expects that a subject shows one of these, the second unless the operation has thrown; and that the
    /// operation, run again, does what it always does.
    void Check(FaultSubject& subject, const PanelOperation& operation, bool hasThrown) const;

private:
    std::string untouched;
    std::string done;
};
