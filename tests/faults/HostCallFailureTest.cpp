// Every call of the host fails in turn, on the way of every operation: the failure reaches the caller, and
// nothing is lost.

#include "tests/faults/FailureBalance.h"
#include "tests/faults/PanelOperations.h"

#include <gtest/gtest.h>

namespace
{

class HostCallFailureInTurn : public testing::TestWithParam<PanelOperation>
{
protected:
    /// Lets the host call number `number` of the operation fail.
    ///
    /// @returns whether there was one.
    bool FailAt(std::size_t number)
    {
        FaultSubject subject;
        operation.arrange(subject);
        subject.calls.FailAfter(number);
        bool hasThrown = false;
        try
        {
            operation.act(subject);
        }
        catch (const HostCallFailure&)
        {
            hasThrown = true;
        }
        subject.calls.FailNone();

        const char* failed = subject.calls.GetFailed();
        EXPECT_EQ(hasThrown, failed != nullptr) << "the failure reaches the caller";
        EXPECT_EQ(subject.calls.openModifications, 0);
        outcomes.Check(subject, operation, hasThrown);
        EXPECT_FALSE(HasFailure()) << (failed == nullptr ? "no call failed" : failed);
        return failed != nullptr;
    }

    const PanelOperation operation = GetParam();
    const FailureOutcomes outcomes{operation};
};

TEST_P(HostCallFailureInTurn, LosesNothing)
{
    bool hasFailed = true;
    for (std::size_t number = 0; hasFailed && !HasFailure(); ++number)
    {
        const FailureBalance before;
        hasFailed = FailAt(number);
        before.ExpectNow();
    }
}

INSTANTIATE_TEST_SUITE_P(Operations, HostCallFailureInTurn, testing::ValuesIn(PanelOperations()),
                         [](const auto& each) { return each.param.name; });

} // namespace
