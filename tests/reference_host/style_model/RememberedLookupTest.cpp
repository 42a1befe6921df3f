// What a style remembers of where its values come from, against every change that makes it wrong.

#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{

using Styles::PropertyKey;
using Styles::Style;

/// An object below two named styles, the farther of which sets a colour; it has been asked for before each
/// test.
class RememberedLookup : public testing::Test
{
protected:
    RememberedLookup()
    {
        Sub(*base, L"fill").SetProperty(color, Number(1));
        EXPECT_EQ(Shown(), Number(1));
    }

    [[nodiscard]] const OvxUtils::Any& Shown() const
    {
        return object->GetSubstyle(Styles::FillStyleCategoryName, false)->GetProperty(color);
    }

    PropertyKey color = Key(L"color");
    std::unique_ptr<Style> base = MakeWhole();
    std::unique_ptr<Style> named = MakeWhole(base.get());
    std::unique_ptr<Style> object = MakeWhole(named.get());
};

TEST_F(RememberedLookup, SeesAnInheritedValueChange)
{
    Sub(*base, L"fill").SetProperty(color, Number(2));

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesAnInheritedValueGo)
{
    Sub(*base, L"fill").SetProperty(color, OvxUtils::Any());

    EXPECT_TRUE(Shown().IsEmpty());
}

TEST_F(RememberedLookup, SeesANearerValueCome)
{
    Sub(*named, L"fill").SetProperty(color, Number(2));

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesValuesCopiedIntoAParent)
{
    Style source;
    source.SetProperty(color, Number(2));

    Sub(*named, L"fill").SetProperties({Path({L"color"})}, &source);

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesASubstyleOfAParentGoAndComeBack)
{
    named->SetSubstyle(Styles::FillStyleCategoryName, nullptr);
    EXPECT_EQ(Shown(), Number(1));

    Sub(*named, L"fill").SetProperty(color, Number(2));

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesASubstyleOfAParentReplaced)
{
    Style other(nullptr, Styles::FillStyleCategoryName);
    other.SetProperty(color, Number(2));

    named->SetSubstyle(Styles::FillStyleCategoryName, &other);

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesAParentAssigned)
{
    const std::unique_ptr<Style> other = MakeWhole(base.get());
    Sub(*other, L"fill").SetProperty(color, Number(2));

    *named = *other;

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesAnotherParentOfItsOwner)
{
    const std::unique_ptr<Style> other = MakeWhole();
    Sub(*other, L"fill").SetProperty(color, Number(2));

    object->SetParent(other.get());

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesAnotherParentOfAParent)
{
    const std::unique_ptr<Style> other = MakeWhole();
    Sub(*other, L"fill").SetProperty(color, Number(2));

    named->SetParent(other.get());

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesAParentGo)
{
    named.reset();

    EXPECT_TRUE(Shown().IsEmpty());
}

TEST_F(RememberedLookup, SeesAParentOfAParentGo)
{
    base.reset();

    EXPECT_TRUE(Shown().IsEmpty());
}

TEST_F(RememberedLookup, SeesAParentOfTheSubstyleItself)
{
    Style other(nullptr, Styles::FillStyleCategoryName);
    other.SetProperty(color, Number(2));

    Sub(*object, L"fill").SetParent(&other);

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, SeesAParentOfACounterpart)
{
    Style other(nullptr, Styles::FillStyleCategoryName);
    Sub(*named, L"fill").SetParent(&other);
    EXPECT_EQ(Shown(), Number(1));

    other.SetProperty(color, Number(2));

    EXPECT_EQ(Shown(), Number(2));
}

TEST_F(RememberedLookup, FindsAReplacedSubstyleOfTheStyleItself)
{
    object->SetSubstyle(Styles::FillStyleCategoryName, nullptr);
    EXPECT_EQ(object->GetSubstyle(Styles::FillStyleCategoryName, false), nullptr);

    Sub(*object, L"fill").SetProperty(color, Number(2));

    EXPECT_EQ(Shown(), Number(2));
}

// What inherits from a substyle inherits less than the substyle itself, which has an owner.
TEST_F(RememberedLookup, OfACounterpartThatLiesDeeperIsNotItsOwn)
{
    const std::unique_ptr<Style> outer = MakeWhole(base.get());
    Style& middle = Sub(*outer, L"fill");
    Sub(Sub(*base, L"fill"), L"inner").SetProperty(color, Number(3));
    Style& inner = Sub(middle, L"inner");
    const std::unique_ptr<Style> below = MakeWhole();
    Style& place = Sub(*below, L"inner");
    below->SetParent(&middle);

    EXPECT_TRUE(place.GetProperty(color).IsEmpty());
    EXPECT_EQ(inner.GetProperty(color), Number(3));
    EXPECT_TRUE(place.GetProperty(color).IsEmpty());
}

TEST(OwnProperties, AreFoundHoweverFarApartTheirKeysWereMade)
{
    std::vector<PropertyKey> keys;
    for (int number = 0; number < 700; ++number)
        keys.push_back(Key((L"far apart " + std::to_wstring(number)).c_str()));
    Style style;
    for (std::size_t index = 0; index < keys.size(); index += 7)
        style.SetProperty(keys[index], Number(static_cast<int>(index)));
    style.SetProperty(PropertyKey::Empty, Number(-1));

    for (std::size_t index = 0; index < keys.size(); ++index)
    {
        SCOPED_TRACE(index);
        EXPECT_EQ(style.DoesOverridePathProperty({keys[index]}), index % 7 == 0);
        EXPECT_EQ(style.GetProperty(keys[index]),
                  index % 7 == 0 ? Number(static_cast<int>(index)) : OvxUtils::Any());
    }
    EXPECT_EQ(style.GetProperty(PropertyKey::Empty), Number(-1));
}

TEST(OwnProperties, AreFoundAgainWhenTheFarOnesAreGone)
{
    std::vector<PropertyKey> keys;
    for (int number = 0; number < 200; ++number)
        keys.push_back(Key((L"near and far " + std::to_wstring(number)).c_str()));
    Style style;
    for (const std::size_t index : {150U, 3U, 40U, 199U})
        style.SetProperty(keys[index], Number(static_cast<int>(index)));

    style.SetProperty(keys[150], OvxUtils::Any());
    style.SetProperty(keys[199], OvxUtils::Any());

    EXPECT_EQ(style.GetOwnPropertyCount(), 2u);
    for (std::size_t index = 0; index < keys.size(); ++index)
        EXPECT_EQ(style.DoesOverridePathProperty({keys[index]}), index == 3 || index == 40) << index;
}

TEST(OwnProperties, AreThoseSetLastWhateverWasSetAndRemovedBefore)
{
    std::vector<PropertyKey> keys{PropertyKey::Empty};
    for (int number = 0; number < 300; ++number)
        keys.push_back(Key((L"in any order " + std::to_wstring(number)).c_str()));
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same run each time.
    Style style;
    std::map<PropertyKey, int> expected;

    // Now near one another, now scattered; mostly few of them.
    for (int step = 0; step < 4000; ++step)
    {
        const std::size_t reach = step / 500 % 2 == 0 ? 50 : keys.size();
        const PropertyKey key = keys[random() % reach];
        if (expected.size() > random() % 30)
        {
            expected.erase(key);
            style.SetProperty(key, OvxUtils::Any());
        }
        else
        {
            expected[key] = step;
            style.SetProperty(key, Number(step));
        }

        ASSERT_EQ(style.GetOwnPropertyCount(), expected.size()) << step;
        for (const PropertyKey& each : keys)
        {
            const auto found = expected.find(each);
            ASSERT_EQ(style.GetProperty(each),
                      found == expected.end() ? OvxUtils::Any() : Number(found->second))
                << "step " << step << ", " << OvxUtils::ToUtf8(each.GetString());
        }
    }
}

} // namespace
