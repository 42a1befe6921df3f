#include "host/style_model/PooledString.h"

#include <gtest/gtest.h>

#include <list>
#include <set>
#include <string>
#include <vector>

namespace
{

/// A pool for tests, which shows that keys need no other one.
class SmallPool
{
public:
    struct Text
    {
        OvxStringViewT characters;
    };

    static const Text* Intern(OvxStringViewT text)
    {
        if (text.empty())
            return nullptr;
        static std::list<std::wstring> copies;
        static std::list<Text> texts;
        for (const Text& kept : texts)
        {
            if (kept.characters == text)
                return &kept;
        }
        return &texts.emplace_back(Text{copies.emplace_back(text)});
    }
};

using Name = Styles::PooledString<SmallPool>;

constexpr SmallPool::Text kConstant{L"constant"};
constinit const Name kConstantName(&kConstant);

TEST(PooledString, IsOnePointerWide)
{
    EXPECT_EQ(sizeof(Name), sizeof(void*));
}

TEST(PooledString, IsEqualExactlyWhenMadeFromEqualTexts)
{
    EXPECT_EQ(Name(L"red"), Name(OvxStringT(L"red")));
    EXPECT_NE(Name(L"red"), Name(L"Red"));
    EXPECT_NE(Name(L"red"), Name(L"re"));
}

TEST(PooledString, OfTheEmptyTextIsTheDefaultOne)
{
    EXPECT_EQ(Name(L""), Name());
    EXPECT_TRUE(Name().IsEmpty());
    EXPECT_EQ(Name().GetIdentity(), nullptr);
    EXPECT_EQ(Name().GetString(), L"");
}

TEST(PooledString, GivesItsText)
{
    EXPECT_EQ(Name(L"red").GetString(), L"red");
    EXPECT_EQ(Name(L"red").GetView(), L"red");
    EXPECT_FALSE(Name(L"red").IsEmpty());
}

TEST(PooledString, OrdersByIdentityAndNotByLetters)
{
    // The first interned stands at one address, the second at another: which is smaller is not the letters'
    // doing.
    const Name later(L"z");
    const Name earlier(L"a");

    EXPECT_EQ(later < earlier, std::less<>()(later.GetIdentity(), earlier.GetIdentity()));
}

TEST(PooledString, OrdersPathsWithAPrefixFirst)
{
    const Name one(L"one");
    const Name two(L"two");

    const std::set<std::vector<Name>> paths{{one, two}, {one}, {}};

    const std::vector<std::vector<Name>> expected{{}, {one}, {one, two}};
    EXPECT_EQ(std::vector<std::vector<Name>>(paths.begin(), paths.end()), expected);
}

TEST(PooledString, MayStandForATextThatIsAConstant)
{
    EXPECT_EQ(kConstantName.GetString(), L"constant");
    EXPECT_EQ(kConstantName.GetIdentity(), &kConstant);
}

} // namespace
