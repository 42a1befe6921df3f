#include "host/utils/Any.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/OvxStringT.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <utility>

namespace
{

using OvxUtils::Any;
using Styles::PooledString;
using Styles::PropertyKey;
using Styles::StringPool;

PropertyKey Key(const wchar_t* text)
{
    return PooledString<StringPool>(text);
}

/// Counts how many of its kind live, and is too large to lie inside an Any.
struct Tracked
{
    explicit Tracked(int& living) : count(&living) { ++*count; }

    Tracked(const Tracked& other) : count(other.count), number(other.number) { ++*count; }

    Tracked& operator=(const Tracked&) = delete;

    ~Tracked() { --*count; }

    int* count;
    int number = 0;
    std::array<int, 16> bulk{};
};

/// Has neither `==` nor `<`.
struct Incomparable
{
    int number = 0;
};

/// Lies inside an Any, but cannot be copied when told so.
struct CopyRefuser
{
    bool refuse = false;

    explicit CopyRefuser(bool refuses) : refuse(refuses) {}

    CopyRefuser(const CopyRefuser& other) : refuse(other.refuse)
    {
        if (refuse)
            throw std::runtime_error("no copy");
    }

    CopyRefuser(CopyRefuser&& other) noexcept : refuse(other.refuse) {}

    CopyRefuser& operator=(const CopyRefuser&) = delete;
    ~CopyRefuser() = default;
};

TEST(Any, IsEmptyAtFirstAndHoldsTheTypeOfNothing)
{
    const Any any;

    EXPECT_TRUE(any.IsEmpty());
    EXPECT_EQ(any.GetType(), typeid(void));
}

TEST(Any, TellsTheTypeOfWhatItHolds)
{
    EXPECT_EQ(Any(7).GetType(), typeid(int));
    EXPECT_EQ(Any(OvxStringT(L"x")).GetType(), typeid(OvxStringT));
    EXPECT_EQ(Any(Key(L"x")).GetType(), typeid(PropertyKey));
    EXPECT_EQ(Any(CLR_COLORSPEC()).GetType(), typeid(CLR_COLORSPEC));
}

TEST(Any, GivesBackWhatItHolds)
{
    EXPECT_EQ(Any(7).Get<int>(), 7);
    EXPECT_EQ(Any(OvxStringT(L"a text that is too long to lie inside")).Get<OvxStringT>(),
              L"a text that is too long to lie inside");
    EXPECT_EQ(Any(Key(L"red")).Get<PropertyKey>(), Key(L"red"));
}

TEST(Any, ThrowsWhenAskedForAnotherType)
{
    const Any any(7);

    EXPECT_THROW((void)any.Get<long>(), std::bad_cast);
    EXPECT_THROW((void)any.Get<OvxStringT>(), std::bad_cast);
    EXPECT_THROW((void)Any().Get<int>(), std::bad_cast);
}

TEST(Any, GivesNullInsteadOfThrowingWhenTried)
{
    const Any any(7);

    EXPECT_EQ(any.TryGet<long>(), nullptr);
    EXPECT_EQ(Any().TryGet<int>(), nullptr);
    ASSERT_NE(any.TryGet<int>(), nullptr);
    EXPECT_EQ(*any.TryGet<int>(), 7);
}

TEST(Any, HoldingEqualValuesOfOneTypeIsEqual)
{
    EXPECT_EQ(Any(1), Any(1));
    EXPECT_EQ(Any(OvxStringT(L"a")), Any(OvxStringT(L"a")));
    EXPECT_EQ(Any(Key(L"a")), Any(Key(L"a")));
    EXPECT_EQ(Any(CLR_COLORSPEC::FromGrey(3)), Any(CLR_COLORSPEC::FromGrey(3)));
}

TEST(Any, HoldingDifferentValuesOfOneTypeIsNotEqual)
{
    EXPECT_NE(Any(1), Any(2));
    EXPECT_NE(Any(OvxStringT(L"a")), Any(OvxStringT(L"A")));
    EXPECT_NE(Any(Key(L"a")), Any(Key(L"b")));
    EXPECT_NE(Any(CLR_COLORSPEC::FromGrey(3)), Any(CLR_COLORSPEC::FromGrey(4)));
}

TEST(Any, HoldingDifferentTypesIsNeverEqual)
{
    EXPECT_NE(Any(1), Any(Key(L"1")));
    EXPECT_NE(Any(1), Any(1L));
    EXPECT_NE(Any(OvxStringT(L"red")), Any(Key(L"red")));
}

TEST(Any, IsEqualToAnotherEmptyOneAndToNothingElse)
{
    EXPECT_EQ(Any(), Any());
    EXPECT_NE(Any(), Any(0));
    EXPECT_NE(Any(0), Any());
}

TEST(Any, OfATypeWithoutEqualityIsEqualToNoOther)
{
    const Any any(Incomparable{1});

    EXPECT_NE(any, Any(Incomparable{1}));
    EXPECT_EQ(any, any);
}

TEST(Any, OrdersByTheHeldValues)
{
    EXPECT_LT(Any(1), Any(2));
    EXPECT_FALSE(Any(2) < Any(1));
    EXPECT_FALSE(Any(1) < Any(1));
    EXPECT_LT(Any(OvxStringT(L"a")), Any(OvxStringT(L"b")));
}

TEST(Any, OrdersEmptyBeforeEverythingElse)
{
    EXPECT_LT(Any(), Any(-5));
    EXPECT_FALSE(Any(-5) < Any());
    EXPECT_FALSE(Any() < Any());
}

TEST(Any, OrdersDifferentTypesOneWayOnly)
{
    const Any number(1);
    const Any text(OvxStringT(L"1"));

    EXPECT_NE(number < text, text < number);
}

TEST(Any, CopiesTheValueAndNotTheAddress)
{
    int living = 0;
    Any original{Tracked(living)};

    const Any copy = original;
    original = Any();

    EXPECT_EQ(living, 1);
    EXPECT_EQ(copy.GetType(), typeid(Tracked));
}

TEST(Any, IsEmptyAfterItWasMovedFrom)
{
    Any original(OvxStringT(L"a text that is too long to lie inside"));

    const Any moved = std::move(original);

    EXPECT_TRUE(original.IsEmpty()); // NOLINT(bugprone-use-after-move): this is what the test is about.
    EXPECT_EQ(moved.Get<OvxStringT>(), L"a text that is too long to lie inside");
}

TEST(Any, EndsEveryValueThatItHeld)
{
    int living = 0;
    {
        Any first{Tracked(living)};
        Any second = first;
        second = Any(4);
        const Any& same = first;
        first = same;
        Any third = std::move(first);
        EXPECT_EQ(living, 1);
        third = Any(Tracked(living));
        EXPECT_EQ(living, 1);
    }

    EXPECT_EQ(living, 0);
}

TEST(Any, KeepsItsValueWhenAnAssignmentFails)
{
    Any any(7);
    const Any refuser{CopyRefuser(true)};

    EXPECT_THROW(any = refuser, std::runtime_error);

    EXPECT_EQ(any.Get<int>(), 7);
}

TEST(Any, HoldsSharedOwnership)
{
    const auto shared = std::make_shared<int>(5);

    const Any any(shared);

    EXPECT_EQ(shared.use_count(), 2);
    EXPECT_EQ(*any.Get<std::shared_ptr<int>>(), 5);
}

} // namespace
