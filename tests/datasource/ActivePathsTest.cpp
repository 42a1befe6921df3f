#include "datasource/ActivePaths.h"

#include "host/style_model/PropertyKey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using Styles::PropertyPath;
using Styles::PropertyPaths;

/// A list of paths, each written as the list of its keys.
PropertyPaths Paths(std::initializer_list<std::initializer_list<const wchar_t*>> texts)
{
    PropertyPaths paths;
    for (const auto& keys : texts)
    {
        PropertyPath& path = paths.emplace_back();
        for (const wchar_t* key : keys)
            path.emplace_back(Styles::PooledString<Styles::StringPool>(key));
    }
    return paths;
}

constexpr bool kKeepWildcard = false;
constexpr bool kDropWildcard = true;

TEST(ActivePaths, AreNoneForAnEmptyText)
{
    EXPECT_EQ(ParseActivePaths(L"", kKeepWildcard), PropertyPaths());
}

TEST(ActivePaths, AreOnePathOfOneKeyForAName)
{
    EXPECT_EQ(ParseActivePaths(L"color", kKeepWildcard), Paths({{L"color"}}));
}

TEST(ActivePaths, KeepTheOrderOfTheText)
{
    EXPECT_EQ(ParseActivePaths(L"type,color,gradient", kKeepWildcard),
              Paths({{L"type"}, {L"color"}, {L"gradient"}}));
}

TEST(ActivePaths, KeepAPathThatStandsTwice)
{
    EXPECT_EQ(ParseActivePaths(L"color,color", kKeepWildcard), Paths({{L"color"}, {L"color"}}));
}

TEST(ActivePaths, HoldTheKeysBetweenDotsOutermostFirst)
{
    EXPECT_EQ(ParseActivePaths(L"gradient.start.color,type", kKeepWildcard),
              Paths({{L"gradient", L"start", L"color"}, {L"type"}}));
}

TEST(ActivePaths, LeaveOutEmptyPieces)
{
    EXPECT_EQ(ParseActivePaths(L",,color,,type,", kKeepWildcard), Paths({{L"color"}, {L"type"}}));
}

TEST(ActivePaths, LeaveOutEmptyKeys)
{
    EXPECT_EQ(ParseActivePaths(L".gradient..start.", kKeepWildcard), Paths({{L"gradient", L"start"}}));
}

TEST(ActivePaths, HoldAnEmptyPathForAPieceWithoutKeys)
{
    EXPECT_EQ(ParseActivePaths(L"color,.", kKeepWildcard), Paths({{L"color"}, {}}));
}

TEST(ActivePaths, TrimNothing)
{
    EXPECT_EQ(ParseActivePaths(L" color , a . b", kKeepWildcard), Paths({{L" color "}, {L" a ", L" b"}}));
}

TEST(ActivePaths, TellLettersByTheirCase)
{
    EXPECT_NE(ParseActivePaths(L"Color", kKeepWildcard), Paths({{L"color"}}));
}

TEST(ActivePaths, KeepALastWildcardUnlessItIsToBeDropped)
{
    EXPECT_EQ(ParseActivePaths(L"gradient.*,*", kKeepWildcard), Paths({{L"gradient", L"*"}, {L"*"}}));
}

TEST(ActivePaths, DropALastWildcardOfEachPath)
{
    EXPECT_EQ(ParseActivePaths(L"gradient.*,type,hatch.*", kDropWildcard),
              Paths({{L"gradient"}, {L"type"}, {L"hatch"}}));
}

TEST(ActivePaths, DropOneWildcardOnly)
{
    EXPECT_EQ(ParseActivePaths(L"gradient.*.*", kDropWildcard), Paths({{L"gradient", L"*"}}));
}

TEST(ActivePaths, BecomeEmptyWhenTheWildcardStandsAlone)
{
    EXPECT_EQ(ParseActivePaths(L"*", kDropWildcard), Paths({{}}));
}

TEST(ActivePaths, KeepAWildcardThatIsNotTheLastKey)
{
    EXPECT_EQ(ParseActivePaths(L"*.color", kDropWildcard), Paths({{L"*", L"color"}}));
}

TEST(ActivePaths, KeepAKeyThatOnlyEndsInAStar)
{
    EXPECT_EQ(ParseActivePaths(L"gradient.co*", kDropWildcard), Paths({{L"gradient", L"co*"}}));
}

} // namespace
