#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/utils/OvxStringT.h"
#include "host/utils/StringSplit.h"
#include "host/utils/Utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(WideTextTest);

// Texts: joining, comparing, filling patterns, cutting, and the way to and from UTF-8.
namespace HostTests
{

using OvxUtils::String::Split;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(WideText, IsJoined)
{
    OvxStringT text = OvxStringViewT(L"get_") + OvxStringViewT(L"Color");
    text += L"!";

    EXPECT_EQ(text, L"get_Color!");
}

TEST(WideText, HasEveryOccurrenceReplacedAndIsNotLookedAtTwice)
{
    OvxStringT text = L"a & b && c";

    const std::size_t count = text.Replace(L"&", L"&&");

    EXPECT_EQ(text, L"a && b &&&& c");
    EXPECT_EQ(count, 3U);
}

TEST(WideText, StaysAsItIsWhereNothingIsReplaced)
{
    OvxStringT text = L"abc";

    EXPECT_EQ(text.Replace(L"", L"x"), 0U);
    EXPECT_EQ(text.Replace(L"d", L"x"), 0U);
    EXPECT_EQ(text, L"abc");
}

TEST(WideText, HasOccurrencesReplacedByNothing)
{
    OvxStringT text = L"a-b-c";

    EXPECT_EQ(text.Replace(L"-", L""), 2U);
    EXPECT_EQ(text, L"abc");
}

TEST(WideText, IsComparedByItsCodesUnlessCaseIsSetAside)
{
    const OvxStringT text = L"Base";

    EXPECT_NE(text.Compare(L"base"), 0);
    EXPECT_NE(text.Compare(L"base", static_cast<CompareCase>(0)), 0);
    EXPECT_EQ(text.Compare(L"Base", CompareCase::Sensitive), 0);
    EXPECT_EQ(text.Compare(L"bASE", CompareCase::Insensitive), 0);
}

TEST(WideText, StandsBeforeWhatHasTheGreaterCode)
{
    const OvxStringT text = L"B";

    EXPECT_GT(text.Compare(L"A"), 0);
    EXPECT_LT(text.Compare(L"a"), 0);
    EXPECT_LT(text.Compare(L"BB"), 0);
    EXPECT_GT(text.Compare(L"a", CompareCase::Insensitive), 0);
}

TEST(NumberPattern, TakesOneNumber)
{
    EXPECT_EQ(OvxStringT::Format(L"itemData[@placeholderCommandID='%d']", 12),
              L"itemData[@placeholderCommandID='12']");
    EXPECT_EQ(OvxStringT::Format(L"%d and %d", -3), L"-3 and %d");
    EXPECT_EQ(OvxStringT::Format(L"%03i%%", 7), L"007%");
}

TEST(NumberPattern, WithoutAPlaceForItStaysAsItIs)
{
    EXPECT_EQ(OvxStringT::Format(L"%s %", 7), L"%s %");
    EXPECT_EQ(OvxStringT::Format(L"", 7), L"");
}

TEST(MessagePattern, TakesItsInserts)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"Apply %1 to \"%2\", %1", {L"fill", L"Base"}),
              L"Apply fill to \"Base\", fill");
}

TEST(MessagePattern, IsFilledInOnePass)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%1 and %2", {L"%2", L"%1%%"}), L"%2 and %1%%");
}

TEST(MessagePattern, HasTwoPercentSignsForOne)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"100%% %%1 %1", {L"x"}), L"100% %1 x");
}

TEST(MessagePattern, KeepsInsertsThatNameNothing)
{
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"%1 %2 %x %", {L"a"}), L"a %2 %x %");
    EXPECT_EQ(OvxStringT::FormatMessageInserts(L"", {L"a"}), L"");
}

TEST(CutText, HasItsPiecesInOrder)
{
    EXPECT_THAT(Split(L"fill.color,outline.*", L',', false, true),
                ElementsAre(OvxStringT(L"fill.color"), OvxStringT(L"outline.*")));
}

TEST(CutText, LosesEmptyPiecesUnlessTheyAreKept)
{
    EXPECT_THAT(Split(L",a,,b,", L',', false, true), ElementsAre(OvxStringT(L"a"), OvxStringT(L"b")));
    EXPECT_THAT(Split(L",a,", L',', true, true), ElementsAre(OvxStringT(), OvxStringT(L"a"), OvxStringT()));
    EXPECT_THAT(Split(L"", L',', false, true), IsEmpty());
}

TEST(CutText, IsNotTrimmed)
{
    EXPECT_THAT(Split(L" a , b", L',', false, true), ElementsAre(OvxStringT(L" a "), OvxStringT(L" b")));
}

TEST(CutText, IsCutAtTheOtherCaseOnlyWhenCaseIsSetAside)
{
    EXPECT_THAT(Split(L"1x2X3", L'x', false, true), ElementsAre(OvxStringT(L"1"), OvxStringT(L"2X3")));
    EXPECT_THAT(Split(L"1x2X3", L'x', false, false),
                ElementsAre(OvxStringT(L"1"), OvxStringT(L"2"), OvxStringT(L"3")));
}

TEST(Utf8Text, ComesBackAsItWas)
{
    const OvxStringT text = L"Gr\u00fc\u00dfe \u2014 \u65e5\u672c";

    EXPECT_EQ(OvxUtils::ToUtf8(text), "Gr\xc3\xbc\xc3\x9f"
                                      "e \xe2\x80\x94 \xe6\x97\xa5\xe6\x9c\xac");
    EXPECT_EQ(OvxUtils::FromUtf8(OvxUtils::ToUtf8(text)), text);
}

TEST(Utf8Text, BeyondTheBasicPlaneComesBackAsItWas)
{
    const std::string smile = "\xf0\x9f\x98\x80";

    EXPECT_EQ(OvxUtils::ToUtf8(OvxUtils::FromUtf8(smile)), smile);
}

TEST(Utf8Text, ThatIsInvalidIsReplacedAndNotRefused)
{
    EXPECT_EQ(OvxUtils::FromUtf8("a\xff"
                                 "b"),
              L"a\ufffd"
              L"b");
}

} // namespace HostTests
