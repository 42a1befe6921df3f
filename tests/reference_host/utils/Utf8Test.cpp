#include "host/utils/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

TEST(Utf8, IsWrittenFromWideText)
{
    EXPECT_EQ(OvxUtils::ToUtf8(L"F\u00fcllung \u20ac"), "F\xC3\xBCllung \xE2\x82\xAC");
    EXPECT_EQ(OvxUtils::ToUtf8(L""), "");
}

TEST(Utf8, IsReadIntoWideText)
{
    EXPECT_EQ(OvxUtils::FromUtf8("F\xC3\xBCllung \xE2\x82\xAC"), L"F\u00fcllung \u20ac");
    EXPECT_EQ(OvxUtils::FromUtf8(""), L"");
}

TEST(Utf8, ComesThroughWithCharactersBeyondTheBasicPlane)
{
    EXPECT_EQ(OvxUtils::FromUtf8("\xF0\x9F\x8E\xA8"), L"\U0001F3A8");
    EXPECT_EQ(OvxUtils::ToUtf8(L"\U0001F3A8"), "\xF0\x9F\x8E\xA8");
}

TEST(Utf8, ComesThroughWithNulCharacters)
{
    EXPECT_EQ(OvxUtils::ToUtf8(OvxStringViewT(L"a\0b", 3)), "a\0b"sv);
    EXPECT_EQ(OvxUtils::FromUtf8("a\0b"sv).size(), 3u);
}

TEST(Utf8, HasAReplacementForWhatCannotBeRead)
{
    EXPECT_EQ(OvxUtils::FromUtf8("a\xFFz"), L"a\uFFFDz");
}

TEST(Utf8, HasAReplacementForALoneSurrogate)
{
    const wchar_t lone[] = {L'a', static_cast<wchar_t>(0xD800), L'z'};

    EXPECT_EQ(OvxUtils::ToUtf8(OvxStringViewT(lone, 3)), "a\xEF\xBF\xBDz");
}

} // namespace
