#include "apps/workbench/ValueText.h"

#include "host/utils/Utf8.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using Workbench::NumberRange;
using Workbench::NumberUnit;
using Workbench::RowDescription;
using Workbench::RowReport;
using Workbench::ValueToText;

namespace
{

/// A number of a row in its unit.
std::string NumberText(int number, std::optional<NumberRange> range)
{
    RowDescription description;
    description.range = range;
    RowReport row;
    row.description = &description;
    row.value = number;
    return OvxUtils::ToUtf8(ValueToText(row));
}

} // namespace

TEST(ValueText, ShowsNumbersInTheUnitOfTheRow)
{
    EXPECT_EQ(NumberText(350, NumberRange{NumberUnit::Millimetre, 0, 1}), "3.5 mm");
    EXPECT_EQ(NumberText(350, NumberRange{NumberUnit::Centimetre, 0, 1}), "0.35 cm");
    EXPECT_EQ(NumberText(105, NumberRange{NumberUnit::Point, 0, 1}), "10.5 pt");
    EXPECT_EQ(NumberText(30, NumberRange{NumberUnit::Percent, 0, 1}), "30 %");
    EXPECT_EQ(NumberText(30, std::nullopt), "30");
}

TEST(ValueText, ShowsNoMoreDigitsThanThereAre)
{
    EXPECT_EQ(NumberText(0, NumberRange{NumberUnit::Millimetre, 0, 1}), "0 mm");
    EXPECT_EQ(NumberText(300, NumberRange{NumberUnit::Millimetre, 0, 1}), "3 mm");
    EXPECT_EQ(NumberText(301, NumberRange{NumberUnit::Millimetre, 0, 1}), "3.01 mm");
    EXPECT_EQ(NumberText(-5, NumberRange{NumberUnit::Millimetre, 0, 1}), "-0.05 mm");
    EXPECT_EQ(NumberText(-2147483648, NumberRange{NumberUnit::Millimetre, 0, 1}), "-21474836.48 mm");
}

TEST(ValueText, ShowsChoicesByTheirLabel)
{
    RowDescription description;
    description.choices = {{L"solid", L"Full"}};
    RowReport row;
    row.description = &description;

    row.value = OvxStringT(L"solid");
    EXPECT_EQ(ValueToText(row), L"Full");
    row.value = OvxStringT(L"other");
    EXPECT_EQ(ValueToText(row), L"other");
}
