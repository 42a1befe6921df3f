#include "apps/workbench/MeasureParsing.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using Workbench::Measure;
using Workbench::ParseMeasure;
using Workbench::RoundToInt;

TEST(Measure, IsANumberAndTheUnitBehindIt)
{
    const auto measure = ParseMeasure(L"-12.5mm");

    ASSERT_TRUE(measure);
    EXPECT_EQ(measure->number, -12.5);
    EXPECT_EQ(measure->unit, L"mm");
}

TEST(Measure, MayHaveBlanksBeforeTheUnitAndNoneElsewhere)
{
    EXPECT_EQ(ParseMeasure(L"3 pt").value_or(Measure()).unit, L"pt");
    EXPECT_FALSE(ParseMeasure(L" 3pt"));
    EXPECT_FALSE(ParseMeasure(L"- 3pt"));
}

TEST(Measure, MayLackTheUnitOrOneSideOfThePoint)
{
    EXPECT_EQ(ParseMeasure(L"+7").value_or(Measure()).number, 7);
    EXPECT_EQ(ParseMeasure(L".5").value_or(Measure()).number, 0.5);
    EXPECT_EQ(ParseMeasure(L"5.").value_or(Measure()).number, 5);
}

TEST(Measure, IsNoOtherText)
{
    for (const wchar_t* text : {L"", L"mm", L".", L"-", L"--1", L"nan", L"inf", L"-inf", L"0x10", L"١"})
        EXPECT_TRUE(!ParseMeasure(text) || !ParseMeasure(text)->unit.empty()) << text;
    EXPECT_FALSE(ParseMeasure(L"nan"));
    EXPECT_FALSE(ParseMeasure(L"inf"));
}

TEST(Measure, TakesAnExponentForAUnit)
{
    EXPECT_EQ(ParseMeasure(L"1e3").value_or(Measure()).unit, L"e3");
}

TEST(Measure, IsNoneWhereADoubleCannotHoldIt)
{
    EXPECT_FALSE(ParseMeasure(std::wstring(400, L'9')));
}

TEST(RoundingToInt, TakesHalvesAwayFromZero)
{
    EXPECT_EQ(RoundToInt(2.5), 3);
    EXPECT_EQ(RoundToInt(-2.5), -3);
    EXPECT_EQ(RoundToInt(2.4), 2);
}

TEST(RoundingToInt, KeepsTheLimitsAndRefusesWhatLiesBeyond)
{
    constexpr int kLargest = std::numeric_limits<int>::max();
    constexpr int kSmallest = std::numeric_limits<int>::min();

    EXPECT_EQ(RoundToInt(kLargest), kLargest);
    EXPECT_EQ(RoundToInt(kSmallest), kSmallest);
    EXPECT_EQ(RoundToInt(kLargest + 1.0), std::nullopt);
    EXPECT_EQ(RoundToInt(kSmallest - 1.0), std::nullopt);
    EXPECT_EQ(RoundToInt(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(RoundToInt(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}
