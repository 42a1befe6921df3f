#include "reference_host/document/picture/ShapeFormulas.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace
{

using ReferenceHost::ShapeFormulas;

class Formulas : public testing::Test
{
protected:
    std::optional<double> Value(const std::string& formula) { return formulas.Calculate(formula); }

    ShapeFormulas formulas{{{0, 0, 21600, 10800}, 4000, 3000, {5400, -1}}};
};

TEST_F(Formulas, CalculateTimesBeforePlus)
{
    EXPECT_EQ(Value("1 +2*3-4/2"), 5);
    EXPECT_EQ(Value("(1+2)*-3"), -9);
}

TEST_F(Formulas, SubtractWithoutBlanks)
{
    EXPECT_EQ(Value("10-3"), 7);
    EXPECT_EQ(Value("right-$0"), 16200);
}

TEST_F(Formulas, KnowModifiersAndKeywords)
{
    EXPECT_EQ(Value("$0 *2"), 10800);
    EXPECT_EQ(Value("$1"), -1);
    EXPECT_EQ(Value("left+right+top+bottom"), 32400);
    EXPECT_EQ(Value("logwidth/logheight*3"), 4);
    EXPECT_NEAR(*Value("cos(pi)"), -1, 1e-9);
}

TEST_F(Formulas, KnowFunctions)
{
    EXPECT_EQ(Value("min(3, 5)+max(3,5)"), 8);
    EXPECT_EQ(Value("if(0-1, 10, 20)"), 20);
    EXPECT_EQ(Value("if(1, 10, 20)"), 10);
    EXPECT_EQ(Value("abs(-4)+sqrt(9)"), 7);
    EXPECT_NEAR(*Value("atan2(1,1)*4"), 3.14159265, 1e-6);
}

TEST_F(Formulas, ReferToEachOtherInAnyOrder)
{
    formulas.Add("f0", "?f1 +1");
    formulas.Add("f1", "$0 *2");

    EXPECT_EQ(formulas.Evaluate("f0"), 10801);
}

TEST_F(Formulas, HaveNoValueWhenTheyNeedThemselves)
{
    formulas.Add("f0", "?f1 +1");
    formulas.Add("f1", "?f0 +1");

    EXPECT_EQ(formulas.Evaluate("f0"), std::nullopt);
}

TEST_F(Formulas, HaveNoValueWhenTheyCannotBeRead)
{
    EXPECT_EQ(Value("1+"), std::nullopt);
    EXPECT_EQ(Value("1 2"), std::nullopt);
    EXPECT_EQ(Value("(1"), std::nullopt);
    EXPECT_EQ(Value("wide*2"), std::nullopt);
    EXPECT_EQ(Value("$7"), std::nullopt);
    EXPECT_EQ(Value("?f9"), std::nullopt);
    EXPECT_EQ(Value("1/0"), std::nullopt);
}

TEST_F(Formulas, RefuseBracketsWithoutEnd)
{
    EXPECT_EQ(Value(std::string(100000, '(')), std::nullopt);
}

} // namespace
