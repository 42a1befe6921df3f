#include "host/utils/RepeatingCallback.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace
{

using OvxUtils::RepeatingCallback;

class Counter
{
public:
    virtual ~Counter() = default;

    virtual int Add(int amount) { return total += amount; }

    [[nodiscard]] int GetTotal() const { return total; }

protected:
    int total = 0;
};

class DoublingCounter : public Counter
{
public:
    int Add(int amount) override { return total += 2 * amount; }
};

TEST(RepeatingCallback, MayBeCalledAnyNumberOfTimes)
{
    Counter counter;
    const RepeatingCallback<int(int)> add(&counter, &Counter::Add);

    add(2);
    add(3);

    EXPECT_EQ(counter.GetTotal(), 5);
}

TEST(RepeatingCallback, CallsTheOverride)
{
    DoublingCounter counter;
    const RepeatingCallback<int(int)> add(static_cast<Counter*>(&counter), &Counter::Add);

    EXPECT_EQ(add(4), 8);
}

TEST(RepeatingCallback, BindsConstOperationsOfConstObjects)
{
    const Counter counter;
    const RepeatingCallback<int()> total(&counter, &Counter::GetTotal);

    EXPECT_EQ(total(), 0);
}

TEST(RepeatingCallback, HandsOnWhatCannotBeCopied)
{
    const RepeatingCallback<int(std::unique_ptr<int>)> read(
        std::function<int(std::unique_ptr<int>)>([](std::unique_ptr<int> number) { return *number; }));

    EXPECT_EQ(read(std::make_unique<int>(6)), 6);
}

TEST(RepeatingCallback, ThrowsWhenItIsEmpty)
{
    const RepeatingCallback<void()> empty;

    EXPECT_FALSE(empty);
    EXPECT_THROW(empty(), std::bad_function_call);
}

} // namespace
