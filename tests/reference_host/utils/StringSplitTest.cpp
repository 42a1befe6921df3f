#include "host/utils/StringSplit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace
{

using OvxUtils::String::Split;
using Pieces = std::vector<OvxStringT>;

constexpr bool kKeepEmpty = true;
constexpr bool kDropEmpty = false;
constexpr bool kCaseSensitive = true;
constexpr bool kAnyCase = false;

TEST(StringSplit, CutsAtEverySeparator)
{
    EXPECT_EQ(Split(L"fill.color.tint", L'.', kDropEmpty, kCaseSensitive),
              (Pieces{L"fill", L"color", L"tint"}));
}

TEST(StringSplit, GivesTheWholeTextWithoutASeparator)
{
    EXPECT_EQ(Split(L"color", L',', kDropEmpty, kCaseSensitive), (Pieces{L"color"}));
}

TEST(StringSplit, DropsEmptyPieces)
{
    EXPECT_EQ(Split(L",a,,b,", L',', kDropEmpty, kCaseSensitive), (Pieces{L"a", L"b"}));
}

TEST(StringSplit, GivesNoPiecesForAnEmptyText)
{
    EXPECT_EQ(Split(L"", L',', kDropEmpty, kCaseSensitive), Pieces{});
    EXPECT_EQ(Split(L",,", L',', kDropEmpty, kCaseSensitive), Pieces{});
}

TEST(StringSplit, KeepsEmptyPiecesWhenTold)
{
    EXPECT_EQ(Split(L",a,,b,", L',', kKeepEmpty, kCaseSensitive), (Pieces{L"", L"a", L"", L"b", L""}));
    EXPECT_EQ(Split(L"", L',', kKeepEmpty, kCaseSensitive), (Pieces{L""}));
}

TEST(StringSplit, TrimsNothing)
{
    EXPECT_EQ(Split(L" a , b ", L',', kDropEmpty, kCaseSensitive), (Pieces{L" a ", L" b "}));
    EXPECT_EQ(Split(L" ", L',', kDropEmpty, kCaseSensitive), (Pieces{L" "}));
}

TEST(StringSplit, TellsLetterCasesApartUnlessToldOtherwise)
{
    EXPECT_EQ(Split(L"1x2X3", L'x', kDropEmpty, kCaseSensitive), (Pieces{L"1", L"2X3"}));
    EXPECT_EQ(Split(L"1x2X3", L'x', kDropEmpty, kAnyCase), (Pieces{L"1", L"2", L"3"}));
}

} // namespace
