#include "tests/faults/HostCalls.h"

#include "tests/faults/FailingAllocations.h"

#include <utility>

void HostCalls::Enter(const char* call)
{
    if (!isArmed)
        return;
    if (remaining != 0)
    {
        --remaining;
        return;
    }
    isArmed = false;
    failed = call;
    throw HostCallFailure(call);
}

void HostCalls::FailAfter(std::size_t others) noexcept
{
    isArmed = true;
    remaining = others;
    failed = nullptr;
}

void HostCalls::Note(const std::string& line)
{
    const FailingAllocations::Pause pause;
    notes += line + "\n";
}

std::string HostCalls::TakeNotes()
{
    return std::exchange(notes, {});
}
