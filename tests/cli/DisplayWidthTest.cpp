#include "apps/cli/DisplayWidth.h"

#include <gtest/gtest.h>

using Cli::DisplayWidth;

TEST(DisplayWidth, IsOneForEachLetter)
{
    EXPECT_EQ(DisplayWidth(L""), 0U);
    EXPECT_EQ(DisplayWidth(L"Box 1"), 5U);
    EXPECT_EQ(DisplayWidth(L"Größe"), 5U);
    EXPECT_EQ(DisplayWidth(L"Ωμέγα"), 5U);
}

TEST(DisplayWidth, IsTwoForEastAsianCharactersAndPictographs)
{
    EXPECT_EQ(DisplayWidth(L"矩形"), 4U);
    EXPECT_EQ(DisplayWidth(L"사각형"), 6U);
    EXPECT_EQ(DisplayWidth(L"\U0001F600"), 2U);
    EXPECT_EQ(DisplayWidth(L"！"), 2U);
}

TEST(DisplayWidth, IsNoneForMarksJoinersAndControls)
{
    EXPECT_EQ(DisplayWidth(L"e\u0301"), 1U);
    EXPECT_EQ(DisplayWidth(L"a\u200Db"), 2U);
    EXPECT_EQ(DisplayWidth(L"a\tb"), 2U);
}

TEST(DisplayWidth, IsOneForTheIconsOfRows)
{
    EXPECT_EQ(DisplayWidth(L"●○◐·"), 4U);
}
