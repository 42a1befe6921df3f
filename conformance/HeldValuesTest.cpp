#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <typeinfo>
#include <utility>
#include <vector>

HOST_TESTS_SUBJECT(HeldValuesTest);

// Values of the four types that styles hold. What they are compared and copied by is made in the host.
namespace HostTests
{

using OvxUtils::Any;

namespace
{

/// One value of each type that styles hold, and a second one that differs from it.
struct TwoValues
{
    Any value;
    Any another;
};

std::vector<TwoValues> ValuesOfEachType()
{
    return {{Any(1), Any(2)},
            {Any(OvxStringT(L"serif")), Any(OvxStringT(L"sans"))},
            {Any(Key(L"solid")), Any(Key(L"gradient"))},
            {Any(CLR_COLORSPEC::FromRgb({1, 2, 3})), Any(CLR_COLORSPEC::FromGrey(1))}};
}

} // namespace

TEST(HeldValue, EqualsACopyOfItselfAndNoOther)
{
    for (const TwoValues& each : ValuesOfEachType())
    {
        const Any copy = each.value;
        EXPECT_EQ(copy, each.value);
        EXPECT_FALSE(each.value == each.another);
    }
}

TEST(HeldValue, StandsEitherBeforeOrBehindAnotherOfItsType)
{
    for (const TwoValues& each : ValuesOfEachType())
    {
        EXPECT_NE(each.value < each.another, each.another < each.value);
        EXPECT_FALSE(each.value < each.value);
    }
}

TEST(HeldValue, OfAnotherTypeIsNeverEqual)
{
    EXPECT_FALSE(Any(1) == Any(Key(L"1")));
    EXPECT_FALSE(Any(OvxStringT(L"solid")) == Any(Key(L"solid")));
}

TEST(HeldValue, IsGivenByItsOwnTypeAlone)
{
    const Any colour(CLR_COLORSPEC::FromRgb({1, 2, 3}));

    EXPECT_EQ(colour.GetType(), typeid(CLR_COLORSPEC));
    EXPECT_EQ(colour.Get<CLR_COLORSPEC>(), CLR_COLORSPEC::FromRgb({1, 2, 3}));
    EXPECT_THROW(static_cast<void>(colour.Get<int>()), std::bad_cast);
    EXPECT_EQ(colour.TryGet<OvxStringT>(), nullptr);
}

TEST(HeldValue, IsNothingAfterItWasMovedAway)
{
    for (TwoValues& each : ValuesOfEachType())
    {
        const Any before = each.value;
        const Any moved = std::move(each.value);
        EXPECT_EQ(moved, before);
        EXPECT_TRUE(each.value.IsEmpty()); // NOLINT(bugprone-use-after-move): what is left is promised
    }
}

TEST(HeldValue, IsNothingAtFirst)
{
    const Any nothing;

    EXPECT_TRUE(nothing.IsEmpty());
    EXPECT_EQ(nothing.GetType(), typeid(void));
    EXPECT_EQ(nothing, Any());
    EXPECT_FALSE(nothing == Any(0));
    EXPECT_LT(nothing, Any(0));
    EXPECT_THROW(static_cast<void>(nothing.Get<int>()), std::bad_cast);
}

TEST(HeldValue, GivesWayToAnotherOfAnyType)
{
    Any holder(CLR_COLORSPEC::FromRgb({1, 2, 3}));

    holder = Any(OvxStringT(L"text"));
    EXPECT_EQ(holder.Get<OvxStringT>(), OvxStringT(L"text"));

    holder = Any(7);
    EXPECT_EQ(holder.Get<int>(), 7);
}

} // namespace HostTests
