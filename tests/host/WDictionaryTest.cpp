#include "host/utils/WDictionary.h"

#include "host/utils/OvxStringT.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace
{

/// Counts how many of its kind live; ends through its base.
class Counted
{
public:
    explicit Counted(int& counter) : count(counter) { ++count; }

    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    virtual ~Counted() { --count; }

private:
    int& count;
};

class Dictionary : public testing::Test
{
protected:
    Counted* Keep(const OvxStringT& key)
    {
        auto value = std::make_unique<Counted>(living);
        Counted* const address = value.get();
        values.Set(key, std::move(value));
        return address;
    }

    int living = 0;
    OvxUtl::WDictionary<Counted, OvxStringT> values;
};

} // namespace

TEST_F(Dictionary, FindsNothingUnderAKeyThatWasNeverSet)
{
    Keep(L"colour");

    EXPECT_EQ(values.Find(L"Colour"), nullptr);
}

TEST_F(Dictionary, KeepsTheAddressesOfItsObjectsWhileOthersComeAndGo)
{
    Counted* const first = Keep(L"first");

    for (int number = 0; number < 1000; ++number)
        Keep(OvxStringT::Format(L"%d", number));
    values.Set(L"7", nullptr);

    EXPECT_EQ(values.Find(L"first"), first);
}

TEST_F(Dictionary, DestroysTheObjectThatAnotherTakesThePlaceOf)
{
    Keep(L"colour");

    Counted* const second = Keep(L"colour");

    EXPECT_EQ(living, 1);
    EXPECT_EQ(values.Find(L"colour"), second);
}

TEST_F(Dictionary, RemovesTheObjectForNull)
{
    Keep(L"colour");

    values.Set(L"colour", nullptr);

    EXPECT_EQ(living, 0);
    EXPECT_EQ(values.Find(L"colour"), nullptr);
}

TEST(DictionaryEnd, DestroysWhatItHolds)
{
    int living = 0;
    {
        OvxUtl::WDictionary<Counted, OvxStringT> values;
        values.Set(L"first", std::make_unique<Counted>(living));
        values.Set(L"second", std::make_unique<Counted>(living));
    }

    EXPECT_EQ(living, 0);
}
