#include "reference_host/utils/Utf8Coding.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

// Both widths of units on every platform; the wide text of the platform is in Utf8Test.cpp.
namespace
{

using ReferenceHost::DecodeUtf8;
using ReferenceHost::EncodeUtf8;

TEST(Utf8Coding, TakesEachLengthFromItsFirstToItsLastCodePoint)
{
    EXPECT_EQ(EncodeUtf8<char32_t>(U"\u007F"), "\x7F");
    EXPECT_EQ(EncodeUtf8<char32_t>(U"\u0080"), "\xC2\x80");
    EXPECT_EQ(EncodeUtf8<char32_t>(U"\u07FF"), "\xDF\xBF");
    EXPECT_EQ(EncodeUtf8<char32_t>(U"\u0800"), "\xE0\xA0\x80");
    EXPECT_EQ(EncodeUtf8<char32_t>(U"\uFFFF"), "\xEF\xBF\xBF");
    EXPECT_EQ(EncodeUtf8<char32_t>(U"\U00010000"), "\xF0\x90\x80\x80");
    EXPECT_EQ(EncodeUtf8<char32_t>(U"\U0010FFFF"), "\xF4\x8F\xBF\xBF");
}

TEST(Utf8Coding, ReadsEachLengthFromItsFirstToItsLastCodePoint)
{
    EXPECT_EQ(DecodeUtf8<char32_t>("\x7F\xC2\x80\xDF\xBF"), U"\u007F\u0080\u07FF");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xE0\xA0\x80\xEF\xBF\xBF"), U"\u0800\uFFFF");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"), U"\U00010000\U0010FFFF");
}

TEST(Utf8Coding, JoinsPairsOfSurrogatesInSixteenBitUnits)
{
    EXPECT_EQ(EncodeUtf8<char16_t>(u"\xD83C\xDFA8"), "\xF0\x9F\x8E\xA8");
    EXPECT_EQ(DecodeUtf8<char16_t>("\xF0\x9F\x8E\xA8"), u"\xD83C\xDFA8");
    EXPECT_EQ(EncodeUtf8<char16_t>(u"\xDBFF\xDFFF"), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(DecodeUtf8<char16_t>("\xF0\x90\x80\x80"), u"\xD800\xDC00");
}

TEST(Utf8Coding, ReplacesSurrogatesThatArePartOfNoPair)
{
    EXPECT_EQ(EncodeUtf8<char16_t>(u"\xD83C"), "\xEF\xBF\xBD");
    EXPECT_EQ(EncodeUtf8<char16_t>(u"\xD83C!"), "\xEF\xBF\xBD!");
    EXPECT_EQ(EncodeUtf8<char16_t>(u"\xDFA8\xD83C"), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf8Coding, ReplacesSurrogatesAndTooLargeValuesInThirtyTwoBitUnits)
{
    const std::u32string bad{0xD83C, 0xDFA8, 0x110000, 0xFFFFFFFF};

    EXPECT_EQ(EncodeUtf8<char32_t>(bad), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf8Coding, ReplacesAByteThatBeginsNothing)
{
    EXPECT_EQ(DecodeUtf8<char32_t>("\x80"), U"\uFFFD");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xF8\x88"), U"\uFFFD\uFFFD");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xFE\xFF"), U"\uFFFD\uFFFD");
}

TEST(Utf8Coding, ReplacesASequenceThatBreaksOffAsOne)
{
    EXPECT_EQ(DecodeUtf8<char32_t>("\xE2\x82"), U"\uFFFD");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xE2\x82!"), U"\uFFFD!");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xF0\x9F\x8E\xC3\xBC"), U"\uFFFD\u00FC");
}

TEST(Utf8Coding, RefusesFormsThatAreLongerThanNeeded)
{
    EXPECT_EQ(DecodeUtf8<char32_t>("\xC0\xAF"), U"\uFFFD\uFFFD");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xE0\x9F\xBF"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xF0\x8F\xBF\xBF"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Utf8Coding, RefusesSurrogatesAndValuesBeyondTheLast)
{
    EXPECT_EQ(DecodeUtf8<char32_t>("\xED\xA0\x80"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xF4\x90\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(DecodeUtf8<char32_t>("\xF5\x80\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
}

} // namespace
