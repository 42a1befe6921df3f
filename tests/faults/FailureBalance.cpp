#include "tests/faults/FailureBalance.h"

#include <gtest/gtest.h>

namespace
{

/// What is seen after an operation, and after it was run again.
std::string LookTwice(FaultSubject& subject, const PanelOperation& operation)
{
    std::string seen = subject.Picture();
    operation.act(subject);
    return seen + "== run again ==\n" + subject.Picture();
}

/// What is seen of a subject where part of the operation may be done: other targets take the place of all
/// that it wrote to.
std::string LookAtOthers(FaultSubject& subject)
{
    subject.HandInOthers();
    return subject.Picture();
}

std::string Look(FaultSubject& subject, const PanelOperation& operation)
{
    return operation.promise == FailurePromise::AllOrNothing ? LookTwice(subject, operation)
                                                             : LookAtOthers(subject);
}

std::string Expected(const PanelOperation& operation, bool isRun)
{
    FaultSubject subject;
    operation.arrange(subject);
    if (isRun)
        operation.act(subject);
    return Look(subject, operation);
}

} // namespace

void FailureBalance::ExpectNow() const
{
    if (testing::Test::HasFailure())
        return;
    const FailureBalance now;
    EXPECT_EQ(now.allocations, allocations);
    EXPECT_EQ(now.styles, styles);
    EXPECT_EQ(now.lists, lists);
}

FailureOutcomes::FailureOutcomes(const PanelOperation& operation)
    : untouched(Expected(operation, false)), done(Expected(operation, true))
{
}

void FailureOutcomes::Check(FaultSubject& subject, const PanelOperation& operation, bool hasThrown) const
{
    const std::string seen = Look(subject, operation);
    if (hasThrown && seen == untouched)
        return;
    EXPECT_EQ(seen, done) << "Neither this nor " << untouched;
}
