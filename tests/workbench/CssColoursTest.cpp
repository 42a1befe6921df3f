#include "apps/workbench/CssColours.h"

#include <gtest/gtest.h>

using Rgb = CLR_COLORSPEC::Rgb;
using Workbench::FindCssColour;

TEST(CssColour, IsFoundByItsNameFirstAndLastAndBetween)
{
    EXPECT_EQ(FindCssColour(L"aliceblue"), (Rgb{0xf0, 0xf8, 0xff}));
    EXPECT_EQ(FindCssColour(L"rebeccapurple"), (Rgb{0x66, 0x33, 0x99}));
    EXPECT_EQ(FindCssColour(L"yellowgreen"), (Rgb{0x9a, 0xcd, 0x32}));
}

TEST(CssColour, IsFoundWhateverTheCase)
{
    EXPECT_EQ(FindCssColour(L"CornflowerBlue"), (Rgb{0x64, 0x95, 0xed}));
    EXPECT_EQ(FindCssColour(L"TOMATO"), (Rgb{0xff, 0x63, 0x47}));
}

TEST(CssColour, HasTwoSpellingsOfGrey)
{
    EXPECT_EQ(FindCssColour(L"gray"), (Rgb{0x80, 0x80, 0x80}));
    EXPECT_EQ(FindCssColour(L"grey"), (Rgb{0x80, 0x80, 0x80}));
}

TEST(CssColour, IsNoneForAnotherText)
{
    for (const wchar_t* text : {L"", L"redd", L" red", L"a", L"zzz", L"transparent", L"#f00"})
        EXPECT_FALSE(FindCssColour(text)) << text;
}
