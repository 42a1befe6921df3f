// Every allocation of every operation fails in turn: the operation throws, and nothing is lost.

#include "tests/datasource/support/Description.h"
#include "tests/faults/FailingAllocations.h"
#include "tests/faults/FailureBalance.h"
#include "tests/faults/PanelOperations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <string>

namespace
{

using FailingAllocations::Countdown;
using FailingAllocations::Failing;

class AllocationFailure : public testing::TestWithParam<PanelOperation>
{
protected:
    /// Lets the allocation number `number` of the operation fail.
    ///
    /// @returns whether there was one.
    bool FailAt(std::size_t number, Failing failing)
    {
        FaultSubject subject;
        operation.arrange(subject);
        bool hasFailed = false;
        bool hasThrown = false;
        {
            const Countdown countdown(number, failing);
            try
            {
                operation.act(subject);
            }
            catch (const std::bad_alloc&)
            {
                hasThrown = true;
            }
            hasFailed = Countdown::HasFailed();
        }

        EXPECT_EQ(subject.calls.openModifications, 0);
        outcomes.Check(subject, operation, hasThrown);
        return hasFailed;
    }

    void FailAtEach(Failing failing)
    {
        bool hasFailed = true;
        for (std::size_t number = 0; hasFailed && !HasFailure(); ++number)
        {
            SCOPED_TRACE("allocation " + std::to_string(number));
            const FailureBalance before;
            hasFailed = FailAt(number, failing);
            before.ExpectNow();
        }
    }

    const PanelOperation operation = GetParam();
    const FailureOutcomes outcomes{operation};
};

TEST_P(AllocationFailure, OfOneLosesNothing)
{
    FailAtEach(Failing::One);
}

TEST_P(AllocationFailure, OfAllThatFollowLosesNothing)
{
    FailAtEach(Failing::AllFrom);
}

INSTANTIATE_TEST_SUITE_P(Operations, AllocationFailure, testing::ValuesIn(PanelOperations()),
                         [](const auto& each) { return each.param.name; });

/// The table of operations against what a panel publishes.
TEST(PanelOperationTable, HoldsEveryBoundName)
{
    const FaultSubject subject;
    const std::vector<PanelOperation> operations = PanelOperations();

    for (const OvxStringT& name : subject.panel.GetNames())
    {
        const auto isOfName = [bound = Describe(name)](const PanelOperation& operation)
        { return operation.name.find(bound) != std::string::npos; };
        EXPECT_TRUE(std::ranges::any_of(operations, isOfName)) << Describe(name);
    }
    EXPECT_EQ(subject.panel.GetNames().size(), 35U);
}

} // namespace
