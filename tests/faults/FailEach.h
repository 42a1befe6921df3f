#pragma once

#include "tests/faults/FailingAllocations.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>

/// Lets the allocations of `act` fail one after the other, and looks with `check` after each failure, until
/// `act` runs through.
template <class Act, class Check>
void FailEach(const Act& act, const Check& check)
{
    for (std::size_t number = 0;; ++number)
    {
        SCOPED_TRACE("allocation " + std::to_string(number));
        bool hasFailed = false;
        {
            const FailingAllocations::Countdown countdown(number, FailingAllocations::Failing::AllFrom);
            try
            {
                act();
            }
            catch (const std::bad_alloc&)
            {
            }
            hasFailed = FailingAllocations::Countdown::HasFailed();
        }
        if (!hasFailed)
            return;
        check();
    }
}
