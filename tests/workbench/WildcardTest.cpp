#include "apps/workbench/Wildcard.h"

#include <gtest/gtest.h>

#include <string>

using Workbench::EndOfBrackets;
using Workbench::MatchesWildcard;

TEST(Wildcard, WithoutSpecialCharactersFitsTheSameTextOnly)
{
    EXPECT_TRUE(MatchesWildcard(L"Box", L"Box"));
    EXPECT_FALSE(MatchesWildcard(L"Box", L"Boxes"));
    EXPECT_FALSE(MatchesWildcard(L"Box", L"Bo"));
    EXPECT_FALSE(MatchesWildcard(L"Box", L"box"));
}

TEST(Wildcard, StarFitsAnyRunOfCharacters)
{
    EXPECT_TRUE(MatchesWildcard(L"*", L""));
    EXPECT_TRUE(MatchesWildcard(L"B*x", L"Bx"));
    EXPECT_TRUE(MatchesWildcard(L"B*x", L"Box in a box"));
    EXPECT_FALSE(MatchesWildcard(L"B*x", L"Boxes"));
}

TEST(Wildcard, SeveralStarsShareTheText)
{
    EXPECT_TRUE(MatchesWildcard(L"*ab*ab*", L"xababx"));
    EXPECT_TRUE(MatchesWildcard(L"**a**", L"a"));
    EXPECT_FALSE(MatchesWildcard(L"*ab*ab*", L"xabx"));
}

TEST(Wildcard, QuestionMarkFitsExactlyOneCharacter)
{
    EXPECT_TRUE(MatchesWildcard(L"B?x", L"Böx"));
    EXPECT_FALSE(MatchesWildcard(L"B?x", L"Bx"));
    EXPECT_FALSE(MatchesWildcard(L"B?x", L"Boox"));
}

TEST(Wildcard, BracketsFitOneOfTheirCharacters)
{
    EXPECT_TRUE(MatchesWildcard(L"Box [ab1-3]", L"Box b"));
    EXPECT_TRUE(MatchesWildcard(L"Box [ab1-3]", L"Box 2"));
    EXPECT_FALSE(MatchesWildcard(L"Box [ab1-3]", L"Box c"));
    EXPECT_FALSE(MatchesWildcard(L"Box [ab1-3]", L"Box -"));
    EXPECT_FALSE(MatchesWildcard(L"Box [ab1-3]", L"Box "));
}

TEST(Wildcard, NegatedBracketsFitEveryOtherCharacter)
{
    EXPECT_TRUE(MatchesWildcard(L"[!a-c]", L"d"));
    EXPECT_TRUE(MatchesWildcard(L"[^a-c]", L"d"));
    EXPECT_FALSE(MatchesWildcard(L"[!a-c]", L"b"));
    EXPECT_FALSE(MatchesWildcard(L"[!a-c]", L""));
}

TEST(Wildcard, BracketsMakeSpecialCharactersPlain)
{
    EXPECT_TRUE(MatchesWildcard(L"[*][?][[]", L"*?["));
    EXPECT_FALSE(MatchesWildcard(L"[*]", L"x"));
}

TEST(Wildcard, ClosingBracketDirectlyAfterTheOpeningIsACharacter)
{
    EXPECT_TRUE(MatchesWildcard(L"[]]", L"]"));
    EXPECT_TRUE(MatchesWildcard(L"[!]]", L"x"));
    EXPECT_FALSE(MatchesWildcard(L"[!]]", L"]"));
}

TEST(Wildcard, DashAtEitherEndOfBracketsIsACharacter)
{
    EXPECT_TRUE(MatchesWildcard(L"[-a]", L"-"));
    EXPECT_TRUE(MatchesWildcard(L"[a-]", L"-"));
}

TEST(Wildcard, BracketThatIsNeverClosedStandsForItself)
{
    EXPECT_TRUE(MatchesWildcard(L"a[b", L"a[b"));
    EXPECT_FALSE(MatchesWildcard(L"a[b", L"ab"));
}

TEST(Wildcard, BracketsBehindAStarAreTriedAtEveryPlace)
{
    EXPECT_TRUE(MatchesWildcard(L"*[0-9]", L"Box 1a2"));
    EXPECT_FALSE(MatchesWildcard(L"*[0-9]", L"Box 1a"));
}

TEST(Wildcard, ManyStarsOnALongTextEndSoon)
{
    const std::wstring text(20000, L'a');

    EXPECT_FALSE(MatchesWildcard(L"a*a*a*a*a*a*a*a*a*b", std::wstring_view(text)));
}

TEST(EndOfBrackets, LiesBehindTheClosingOne)
{
    EXPECT_EQ(EndOfBrackets(L"x[a,b]y", 1), 6U);
    EXPECT_EQ(EndOfBrackets(L"[!]]", 0), 4U);
}

TEST(EndOfBrackets, IsTheOpeningOneWhenNoneCloses)
{
    EXPECT_EQ(EndOfBrackets(L"x[a,b", 1), 1U);
    EXPECT_EQ(EndOfBrackets(L"[]", 0), 0U);
}
