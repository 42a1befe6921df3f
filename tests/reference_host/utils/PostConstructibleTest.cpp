#include "host/utils/PostConstructible.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using Steps = std::vector<std::string>;

class Base : public OvxUtils::PostConstructible
{
public:
    explicit Base(Steps& taken) : steps(taken)
    {
        CallOnPostConstruct([this] { steps.emplace_back("queued by the base"); });
    }

protected:
    Steps& steps;
};

class Derived final : public Base
{
public:
    explicit Derived(Steps& taken) : Base(taken)
    {
        CallOnPostConstruct([this] { steps.emplace_back("queued by the derived"); });
    }

    void PostConstruct() override { steps.emplace_back("post-construct"); }
};

TEST(PostConstructible, RunsNothingUntilTheObjectIsFinished)
{
    Steps steps;
    const Derived object(steps);

    EXPECT_THAT(steps, testing::IsEmpty());
}

TEST(PostConstructible, RunsQueuedDelegatesBaseFirstAndThenPostConstruct)
{
    Steps steps;
    Derived object(steps);

    object.FinishConstruction();

    EXPECT_THAT(steps, testing::ElementsAre("queued by the base", "queued by the derived", "post-construct"));
}

TEST(PostConstructible, IsFinishedOnce)
{
    Steps steps;
    Derived object(steps);
    object.FinishConstruction();
    steps.clear();

    object.FinishConstruction();

    EXPECT_THAT(steps, testing::IsEmpty());
}

TEST(PostConstructible, RunsWhatADelegateQueues)
{
    Steps steps;
    Derived object(steps);
    object.CallOnPostConstruct(
        [&] { object.CallOnPostConstruct([&steps] { steps.emplace_back("queued by a delegate"); }); });

    object.FinishConstruction();

    EXPECT_THAT(steps, testing::ElementsAre("queued by the base", "queued by the derived",
                                            "queued by a delegate", "post-construct"));
}

} // namespace
