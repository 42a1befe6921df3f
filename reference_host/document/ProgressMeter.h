#pragma once

#include "reference_host/document/Progress.h"

#include <cstddef>
#include <limits>
#include <optional>

namespace ReferenceHost
{

/// Tells a listener of one operation how far it is, and stops the operation when the listener says so.
class ProgressMeter
{
public:
    /// Borrows the listener, which may be empty.
    explicit ProgressMeter(const ProgressListener& progressListener) : listener(progressListener) {}

    ProgressMeter(const ProgressMeter&) = delete;
    ProgressMeter& operator=(const ProgressMeter&) = delete;

    /// Tells of it when the phase is another than before or the fraction has grown enough to be worth it.
    ///
    /// @throws OperationCancelled
    void Tell(ProgressPhase phase, double fraction);

    /// Tells that all is done, in the phase that was told last. Once.
    ///
    /// @throws OperationCancelled
    void Finish();

private:
    void TellNow(const Progress& progress);

    const ProgressListener& listener;
    std::optional<Progress> told; ///< What was told last.
};

/// A stretch of an operation, such as 0.2 to 0.5 of the whole, in which some amount of work is done.
///
/// Cheap to copy. A stretch that is made without a meter tells nobody, so that work which is part of larger
/// operations can also be done by itself.
class ProgressSpan
{
public:
    ProgressSpan() = default;

    /// The whole operation. Borrows the meter.
    explicit ProgressSpan(ProgressMeter& operation) : meter(&operation) {}

    /// The stretch of this one from one share of it to another.
    [[nodiscard]] ProgressSpan Part(double from, double to) const;

    /// The same in a phase of its own, unless this one is all of one phase already: that of the larger piece
    /// of work is what a person wants to know.
    [[nodiscard]] ProgressSpan Part(ProgressPhase itsPhase, double from, double to) const;

    /// Begins the work, of which `total` can be reached. Only for a stretch with a phase.
    ///
    /// @throws OperationCancelled
    void Start(std::size_t total);

    /// Tells that so much of the total has been done. Called for every little piece of work: nearly always it
    /// only compares.
    ///
    /// @throws OperationCancelled
    void Reach(std::size_t done)
    {
        if (done >= next)
            Tell(done);
    }

private:
    void Tell(std::size_t done);

    ProgressMeter* meter = nullptr; ///< Null to tell nobody.
    std::optional<ProgressPhase> phase;
    double begin = 0;
    double end = 1;
    std::size_t amount = 1;
    std::size_t step = 1;
    std::size_t next = std::numeric_limits<std::size_t>::max(); ///< From where on there is something to tell.
};

/// Cuts a stretch into pieces that follow each other, each as long as its share of the work.
class ProgressPieces
{
public:
    /// `sizeOfAll` is the sum of what Next() will be called with.
    ProgressPieces(const ProgressSpan& whole, std::size_t sizeOfAll) : span(whole), all(sizeOfAll) {}

    [[nodiscard]] ProgressSpan Next(std::size_t size);

private:
    ProgressSpan span;
    std::size_t all;
    std::size_t done = 0;
};

} // namespace ReferenceHost
