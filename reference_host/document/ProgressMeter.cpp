#include "reference_host/document/ProgressMeter.h"

#include <algorithm>
#include <cmath>

namespace ReferenceHost
{

namespace
{

/// What is worth telling: fine enough for a smooth bar.
constexpr double kStep = 1.0 / 256;

} // namespace

void ProgressMeter::Tell(ProgressPhase phase, double fraction)
{
    if (!listener)
        return;
    const double before = told ? told->fraction : 0;
    const bool isWorthIt = !told || told->phase != phase || fraction - before >= kStep;
    if (isWorthIt)
        TellNow({phase, std::clamp(fraction, before, 1.0)});
}

void ProgressMeter::Finish()
{
    if (listener)
        TellNow({told ? told->phase : ProgressPhase(), 1});
}

void ProgressMeter::TellNow(const Progress& progress)
{
    told = progress;
    if (listener(progress) == ProgressAnswer::Stop)
        throw OperationCancelled();
}

ProgressSpan ProgressSpan::Part(double from, double to) const
{
    ProgressSpan part;
    part.meter = meter;
    part.phase = phase;
    part.begin = begin + (end - begin) * from;
    part.end = begin + (end - begin) * to;
    return part;
}

ProgressSpan ProgressSpan::Part(ProgressPhase itsPhase, double from, double to) const
{
    ProgressSpan part = Part(from, to);
    part.phase = phase.value_or(itsPhase);
    return part;
}

void ProgressSpan::Start(std::size_t total)
{
    if (meter == nullptr)
        return;
    amount = std::max<std::size_t>(total, 1);
    const double pieces = std::max((end - begin) / kStep, 1.0);
    step = static_cast<std::size_t>(std::ceil(static_cast<double>(amount) / pieces));
    Tell(0);
}

void ProgressSpan::Tell(std::size_t done)
{
    next = done + step;
    const double share = static_cast<double>(std::min(done, amount)) / static_cast<double>(amount);
    meter->Tell(phase.value_or(ProgressPhase()), begin + (end - begin) * share);
}

ProgressSpan ProgressPieces::Next(std::size_t size)
{
    const auto whole = static_cast<double>(std::max<std::size_t>(all, 1));
    const auto begin = static_cast<double>(done);
    done += size;
    return span.Part(begin / whole, static_cast<double>(done) / whole);
}

} // namespace ReferenceHost
