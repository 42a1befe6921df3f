#include "host/utils/OvxStringT.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_set>

namespace
{

TEST(OvxString, IsMadeFromEveryKindOfText)
{
    const std::wstring wide = L"text";

    EXPECT_EQ(OvxStringT(L"text").Wide(), wide);
    EXPECT_EQ(OvxStringT(wide).Wide(), wide);
    EXPECT_EQ(OvxStringT(std::wstring_view(wide)).Wide(), wide);
    EXPECT_EQ(OvxStringT(OvxStringViewT(wide)).Wide(), wide);
}

TEST(OvxString, IsEmptyAtFirst)
{
    EXPECT_TRUE(OvxStringT().empty());
    EXPECT_EQ(OvxStringT().size(), 0u);
    EXPECT_FALSE(OvxStringT(L"x").empty());
}

TEST(OvxString, IsJoinedWithTextOnEitherSide)
{
    const OvxStringT fill = L"Fill";

    EXPECT_EQ(fill + L": " + fill, L"Fill: Fill");
    EXPECT_EQ(L"<" + fill + OvxStringViewT(L">"), L"<Fill>");
}

TEST(OvxString, GrowsByWhatIsAppended)
{
    OvxStringT text = L"a";

    text += L"b";
    text += text;

    EXPECT_EQ(text, L"abab");
}

TEST(OvxString, EqualsTextOfTheSameCharactersOnly)
{
    const OvxStringT text = L"Fill";

    EXPECT_TRUE(text == OvxStringT(L"Fill"));
    EXPECT_TRUE(text == L"Fill");
    EXPECT_TRUE(L"Fill" == text);
    EXPECT_TRUE(text == OvxStringViewT(L"Fill"));
    EXPECT_TRUE(text == std::wstring(L"Fill"));
    EXPECT_TRUE(text == std::wstring_view(L"Fill"));
    EXPECT_FALSE(text == L"fill");
    EXPECT_TRUE(text != L"Fill ");
}

TEST(OvxString, IsOrderedByCodeValue)
{
    EXPECT_LT(OvxStringT(L"B"), OvxStringT(L"a"));
    EXPECT_LT(OvxStringT(L"a"), OvxStringT(L"ab"));
    EXPECT_FALSE(OvxStringT(L"a") < OvxStringT(L"a"));
}

TEST(OvxString, HashesEqualTextsAlike)
{
    const std::hash<OvxStringT> hash;

    EXPECT_EQ(hash(L"Fill"), hash(OvxStringT(L"Fi") + L"ll"));
    EXPECT_TRUE((std::unordered_set<OvxStringT>{L"a", L"b"}.contains(L"b")));
}

TEST(OvxString, ComparesByCodeValueUnlessToldOtherwise)
{
    EXPECT_EQ(OvxStringT(L"style").Compare(L"style"), 0);
    EXPECT_GT(OvxStringT(L"style").Compare(L"Style"), 0);
    EXPECT_LT(OvxStringT(L"Style").Compare(L"style", CompareCase::Sensitive), 0);
    EXPECT_LT(OvxStringT(L"st").Compare(L"style"), 0);
}

TEST(OvxString, ComparesWithoutCaseWhenTold)
{
    EXPECT_EQ(OvxStringT(L"STYLE").Compare(L"style", CompareCase::Insensitive), 0);
    EXPECT_LT(OvxStringT(L"a").Compare(L"B", CompareCase::Insensitive), 0);
    EXPECT_GT(OvxStringT(L"b").Compare(L"A", CompareCase::Insensitive), 0);
    EXPECT_LT(OvxStringT(L"ST").Compare(L"style", CompareCase::Insensitive), 0);
    EXPECT_GT(OvxStringT(L"style").Compare(L"ST", CompareCase::Insensitive), 0);
}

TEST(OvxString, ReplacesEveryOccurrence)
{
    OvxStringT text = L"Lines & Fills & more";

    EXPECT_EQ(text.Replace(L"&", L"&&"), 2u);

    EXPECT_EQ(text, L"Lines && Fills && more");
}

TEST(OvxString, NeverReplacesInWhatItInserted)
{
    OvxStringT text = L"aaa";

    EXPECT_EQ(text.Replace(L"aa", L"a"), 1u);

    EXPECT_EQ(text, L"aa");
}

TEST(OvxString, ReplacesNothingWhereNothingIsFoundOrSought)
{
    OvxStringT text = L"abc";

    EXPECT_EQ(text.Replace(L"x", L"y"), 0u);
    EXPECT_EQ(text.Replace(L"", L"y"), 0u);
    EXPECT_EQ(text, L"abc");
}

TEST(OvxString, RemovesWhatIsReplacedByNothing)
{
    OvxStringT text = L"a.b.";

    text.Replace(L".", L"");

    EXPECT_EQ(text, L"ab");
}

TEST(OvxString, FormatsANumberIntoAPattern)
{
    EXPECT_EQ(OvxStringT::Format(L"%d styles", 12), L"12 styles");
    EXPECT_EQ(OvxStringT::Format(L"Style %i", -3), L"Style -3");
    EXPECT_EQ(OvxStringT::Format(L"%03d|", 7), L"007|");
    EXPECT_EQ(OvxStringT::Format(L"%-4d|", 7), L"7   |");
    EXPECT_EQ(OvxStringT::Format(L"%4d|", 7), L"   7|");
    EXPECT_EQ(OvxStringT::Format(L"%04d", -7), L"-007");
    EXPECT_EQ(OvxStringT::Format(L"%2d", 12345), L"12345");
    EXPECT_EQ(OvxStringT::Format(L"%+d", 7), L"+7");
    EXPECT_EQ(OvxStringT::Format(L"% d", 7), L" 7");
    EXPECT_EQ(OvxStringT::Format(L"%d", std::numeric_limits<int>::min()), L"-2147483648");
}

TEST(OvxString, FormatsNoWiderThanAnyNumberNeeds)
{
    EXPECT_EQ(OvxStringT::Format(L"%999999999d", 7).size(), 100u);
}

TEST(OvxString, FormatsTheFirstNumberAloneAndPercentSigns)
{
    EXPECT_EQ(OvxStringT::Format(L"%d%% of %d", 50), L"50% of %d");
    EXPECT_EQ(OvxStringT::Format(L"no number", 1), L"no number");
    EXPECT_EQ(OvxStringT::Format(L"", 1), L"");
}

TEST(OvxString, LeavesEverythingElseInAFormatAsItIs)
{
    EXPECT_EQ(OvxStringT::Format(L"%s %n %", 1), L"%s %n %");
    EXPECT_EQ(OvxStringT::Format(L"%5x", 1), L"%5x");
}

TEST(OvxString, FillsMessageInsertsByTheirNumbers)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%2 from %1", {L"A", L"B"}), L"B from A");
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%1%1", {L"A"}), L"AA");
}

TEST(OvxString, FillsMessageInsertsInOnePass)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%1: %2", {L"%2", L"B"}), L"%2: B");
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%1", {L"100%%"}), L"100%%");
}

TEST(OvxString, WritesADoubledPercentSignInAMessageAsOne)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"100%% of %1", {L"A"}), L"100% of A");
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%%1", {L"A"}), L"%1");
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%%%1", {L"A"}), L"%A");
}

TEST(OvxString, LeavesInsertsWithoutATextInAMessageAsTheyAre)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%1 %2 %0 %x %", {L"A"}), L"A %2 %0 %x %");
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%1", {}), L"%1");
}

TEST(OvxString, FillsAnEmptyMessageWithNothing)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"", {L"A"}), L"");
}

} // namespace
