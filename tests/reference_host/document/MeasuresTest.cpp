#include "reference_host/document/Measures.h"

#include <gmock/gmock.h>

using ReferenceHost::FormatLength;
using ReferenceHost::ParseFontSize;
using ReferenceHost::ParseFraction;
using ReferenceHost::ParseLength;
using ReferenceHost::ParsePercent;
using ReferenceHost::RoundToInt;
using testing::Eq;
using testing::Optional;

namespace
{

struct WrittenLength
{
    const char* text;
    int hundredthMm;
};

class LengthUnits : public testing::TestWithParam<WrittenLength>
{
};

TEST_P(LengthUnits, BecomeHundredthsOfAMillimetre)
{
    const auto length = ParseLength(GetParam().text);

    EXPECT_THAT(length, Optional(GetParam().hundredthMm));
}

INSTANTIATE_TEST_SUITE_P(Written, LengthUnits,
                         testing::Values(WrittenLength{"5mm", 500}, WrittenLength{"0.5cm", 500},
                                         WrittenLength{"0.05cm", 50}, WrittenLength{"1in", 2540},
                                         WrittenLength{"72pt", 2540}, WrittenLength{"6pc", 2540},
                                         WrittenLength{"96px", 2540}, WrittenLength{"0.01m", 1000},
                                         WrittenLength{"-0.25cm", -250}, WrittenLength{".5mm", 50},
                                         WrittenLength{"0", 0}, WrittenLength{"0cm", 0}));

TEST(Lengths, AreRoundedToTheNearestHundredthHalvesAwayFromZero)
{
    EXPECT_THAT(ParseLength("0.0124cm"), Optional(12));
    EXPECT_THAT(ParseLength("0.0125cm"), Optional(13));
    EXPECT_THAT(ParseLength("-0.0125cm"), Optional(-13));
}

class MalformedLengths : public testing::TestWithParam<const char*>
{
};

TEST_P(MalformedLengths, AreNoLengths)
{
    const auto length = ParseLength(GetParam());

    EXPECT_THAT(length, Eq(std::nullopt));
}

INSTANTIATE_TEST_SUITE_P(Written, MalformedLengths,
                         testing::Values("", "cm", "12", "1 cm", "1em", "1cmx", "+1cm", "nancm", "infcm",
                                         "--1cm", "1,5cm", "1e3cm", "50%", "99999999cm"));

TEST(FontSizes, AreTenthsOfAPoint)
{
    EXPECT_THAT(ParseFontSize("14pt"), Optional(140));
    EXPECT_THAT(ParseFontSize("10.54pt"), Optional(105));
    EXPECT_THAT(ParseFontSize("0.5cm"), Optional(142));
}

TEST(FontSizes, ArePositive)
{
    EXPECT_THAT(ParseFontSize("0pt"), Eq(std::nullopt));
    EXPECT_THAT(ParseFontSize("-3pt"), Eq(std::nullopt));
}

TEST(Percentages, NeedTheirSign)
{
    EXPECT_THAT(ParsePercent("70.5%"), Optional(70.5));
    EXPECT_THAT(ParsePercent("70"), Eq(std::nullopt));
    EXPECT_THAT(ParsePercent("%"), Eq(std::nullopt));
}

TEST(Fractions, AreWrittenAsPercentageOrNumber)
{
    EXPECT_THAT(ParseFraction("70%"), Optional(70.0));
    EXPECT_THAT(ParseFraction("0.25"), Optional(25.0));
}

TEST(Fractions, LieBetweenNothingAndAll)
{
    EXPECT_THAT(ParseFraction("101%"), Eq(std::nullopt));
    EXPECT_THAT(ParseFraction("-1%"), Eq(std::nullopt));
    EXPECT_THAT(ParseFraction("1.5"), Eq(std::nullopt));
}

TEST(Rounding, RefusesWhatAnIntCannotHold)
{
    EXPECT_THAT(RoundToInt(2147483647.0), Optional(2147483647));
    EXPECT_THAT(RoundToInt(2147483648.0), Eq(std::nullopt));
}

TEST(Lengths, AreFormattedWithoutIdleDigits)
{
    EXPECT_EQ(FormatLength(500), "5mm");
    EXPECT_EQ(FormatLength(525), "5.25mm");
    EXPECT_EQ(FormatLength(520), "5.2mm");
    EXPECT_EQ(FormatLength(-30), "-0.3mm");
    EXPECT_EQ(FormatLength(7), "0.07mm");
}

} // namespace
