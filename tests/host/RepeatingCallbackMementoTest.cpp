#include "host/utils/RepeatingCallbackMemento.h"

#include "host/utils/OvxStringT.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{

using OvxUtils::Any;
using OvxUtils::RepeatingCallback;
using OvxUtils::RepeatingCallbackMemento;

template <class Signature, class Function>
RepeatingCallbackMemento Keep(Function function)
{
    return RepeatingCallbackMemento(RepeatingCallback<Signature>(std::function<Signature>(function)));
}

TEST(RepeatingCallbackMemento, GivesTheResultOfACallWithoutArgument)
{
    const auto memento = Keep<int()>([] { return 3; });

    EXPECT_EQ(memento.Invoke(), Any(3));
}

TEST(RepeatingCallbackMemento, GivesAnEmptyResultForACallWithoutOne)
{
    int calls = 0;
    const auto memento = Keep<void()>([&calls] { ++calls; });

    EXPECT_TRUE(memento.Invoke(Any(9)).IsEmpty());
    EXPECT_EQ(calls, 1);
}

TEST(RepeatingCallbackMemento, UnwrapsTheArgument)
{
    OvxStringT seen;
    const auto memento = Keep<void(const OvxStringT&)>([&seen](const OvxStringT& text) { seen = text; });

    memento.Invoke(Any(OvxStringT(L"text")));

    EXPECT_EQ(seen, L"text");
}

TEST(RepeatingCallbackMemento, HandsACallThatTakesAnAnyTheVeryOne)
{
    const Any* seen = nullptr;
    const auto memento = Keep<void(const Any&)>([&seen](const Any& argument) { seen = &argument; });
    const Any argument(1);

    memento.Invoke(argument);

    EXPECT_EQ(seen, &argument);
}

TEST(RepeatingCallbackMemento, HandsOnAnAnyThatACallReturns)
{
    const auto memento = Keep<Any()>([] { return Any(4); });

    EXPECT_EQ(memento.Invoke(), Any(4));
}

TEST(RepeatingCallbackMemento, RefusesAnArgumentOfAnotherTypeWithoutCalling)
{
    int calls = 0;
    const auto memento = Keep<void(int)>([&calls](int) { ++calls; });

    EXPECT_THROW(memento.Invoke(Any(OvxStringT(L"7"))), std::bad_cast);
    EXPECT_THROW(memento.Invoke(), std::bad_cast);
    EXPECT_EQ(calls, 0);
}

TEST(RepeatingCallbackMemento, GivesTheCallbackBackUnderItsOwnSignatureOnly)
{
    const auto memento = Keep<int(int)>([](int number) { return number + 1; });

    const auto* callback = memento.TryGet<int(int)>();

    ASSERT_NE(callback, nullptr);
    EXPECT_EQ((*callback)(1), 2);
    EXPECT_EQ(memento.TryGet<int()>(), nullptr);
    EXPECT_EQ(memento.TryGet<void(int)>(), nullptr);
}

TEST(RepeatingCallbackMemento, SharesOneCallAmongItsCopies)
{
    const auto memento = Keep<int()>([calls = 0]() mutable { return ++calls; });
    const RepeatingCallbackMemento copy = memento; // NOLINT(performance-unnecessary-copy-initialization)

    memento.Invoke();

    EXPECT_EQ(copy.Invoke(), Any(2));
}

TEST(RepeatingCallbackMemento, ThrowsWhenItIsEmpty)
{
    const RepeatingCallbackMemento empty;

    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_EQ(empty.TryGet<void()>(), nullptr);
    EXPECT_THROW(empty.Invoke(), std::bad_function_call);
}

} // namespace
