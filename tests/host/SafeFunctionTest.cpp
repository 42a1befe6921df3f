#include "host/utils/SafeFunction.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

using SafeFunction = OvxUtils::basic_safe_function<void()>;

TEST(SafeFunction, IsCalledThroughWhatWasShared)
{
    int calls = 0;
    const SafeFunction function([&calls] { ++calls; });
    const SafeFunction::Shared shared = function.Share();

    shared();
    shared();

    EXPECT_EQ(calls, 2);
}

TEST(SafeFunction, DoesNothingOnceTheOriginalIsGone)
{
    int calls = 0;
    auto function = std::make_unique<SafeFunction>([&calls] { ++calls; });
    const SafeFunction::Shared shared = function->Share();
    function.reset();

    shared();

    EXPECT_EQ(calls, 0);
}

TEST(SafeFunction, EndsWhatItsBodyHoldsThoughOthersKeepIt)
{
    const auto held = std::make_shared<int>(1);
    auto function = std::make_unique<SafeFunction>([held] { (void)*held; });
    const SafeFunction::Shared shared = function->Share();

    function.reset();

    EXPECT_EQ(held.use_count(), 1);
}

TEST(SafeFunction, SharesOneTokenWithItsCopiesAndWithNoOther)
{
    const SafeFunction function([] {});
    const SafeFunction other([] {});

    EXPECT_EQ(function.Share().GetToken(), function.GetToken());
    EXPECT_NE(function.GetToken(), other.GetToken());
}

TEST(SafeFunction, SharedByNobodyDoesNothing)
{
    const SafeFunction::Shared nothing;

    EXPECT_NO_THROW(nothing());
    EXPECT_EQ(nothing.GetToken(), 0u);
}

} // namespace
