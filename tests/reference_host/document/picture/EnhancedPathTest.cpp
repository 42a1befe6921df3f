#include "reference_host/document/picture/EnhancedPath.h"

#include "tests/reference_host/document/picture/ContourText.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{

using ReferenceHost::ReadEnhancedPath;
using ReferenceHost::ReadTextArea;
using ReferenceHost::ShapeFormulas;
using testing::ElementsAre;

class EnhancedPaths : public testing::Test
{
protected:
    /// The parts of a path, those without fill or stroke marked; "-" for a path that cannot be read.
    std::vector<std::string> Read(const std::string& path)
    {
        const auto parts = ReadEnhancedPath(path, formulas);
        if (!parts)
            return {"-"};
        std::vector<std::string> texts;
        for (const ReferenceHost::ShapePart& part : *parts)
        {
            texts.push_back(TextOf(part.contour) + (part.isFilled ? "" : " unfilled") +
                            (part.isStroked ? "" : " unstroked"));
        }
        return texts;
    }

    ShapeFormulas formulas{{{0, 0, 100, 100}, 2000, 1000, {25}}};
};

TEST_F(EnhancedPaths, DrawLinesAndCurves)
{
    EXPECT_THAT(Read("M 0 0 L 100 0 100 100 C 1 2 3 4 5 6 Z N"),
                ElementsAre("M0,0 L100,0 L100,100 C1,2 3,4 5,6 Z"));
}

TEST_F(EnhancedPaths, TakeFurtherPointsOfAMoveForLines)
{
    EXPECT_THAT(Read("M 0 0 100 0 100 100 Z"), ElementsAre("M0,0 L100,0 L100,100 Z"));
}

TEST_F(EnhancedPaths, UseModifiersEquationsAndKeywords)
{
    formulas.Add("f0", "right-$0");

    EXPECT_THAT(Read("M $0 top L ?f0 0 right bottom N"), ElementsAre("M25,0 L75,0 L100,100"));
}

TEST_F(EnhancedPaths, DividePartsThatAreFilledAndStrokedApart)
{
    EXPECT_THAT(Read("M 0 0 L 1 1 S N M 2 2 L 3 3 F N M 4 4 L 5 5"),
                ElementsAre("M0,0 L1,1 unstroked", "M2,2 L3,3 unfilled", "M4,4 L5,5"));
}

TEST_F(EnhancedPaths, DrawWholeEllipses)
{
    EXPECT_THAT(Read("U 50 50 50 20 0 360 Z N"),
                ElementsAre("M100,50 C100,61.05 77.61,70 50,70 C22.39,70 0,61.05 0,50 "
                            "C0,38.95 22.39,30 50,30 C77.61,30 100,38.95 100,50 Z"));
}

TEST_F(EnhancedPaths, DrawArcsBothWays)
{
    EXPECT_THAT(Read("M 100 50 W 0 0 100 100 100 50 50 100"),
                ElementsAre("M100,50 C100,77.61 77.61,100 50,100"));
    EXPECT_THAT(Read("M 100 50 A 0 0 100 100 100 50 50 0"), ElementsAre("M100,50 C100,22.39 77.61,0 50,0"));
}

TEST_F(EnhancedPaths, LeaveAGapBeforeArcsThatStandApart)
{
    EXPECT_THAT(Read("M 0 0 L 5 5 V 0 0 100 100 100 50 50 100"),
                ElementsAre("M0,0 L5,5 M100,50 C100,77.61 77.61,100 50,100"));
}

TEST_F(EnhancedPaths, DrawQuadrantsInTurns)
{
    EXPECT_THAT(Read("M 0 0 X 10 10"), ElementsAre("M0,0 C5.52,0 10,4.48 10,10"));
    EXPECT_THAT(Read("M 0 0 Y 10 10"), ElementsAre("M0,0 C0,5.52 4.48,10 10,10"));
    EXPECT_THAT(Read("M 0 0 X 10 10 0 20"), ElementsAre("M0,0 C5.52,0 10,4.48 10,10 C10,15.52 5.52,20 0,20"));
}

TEST_F(EnhancedPaths, SwingFromTheCurrentPoint)
{
    EXPECT_THAT(Read("M 0 0 G 10 10 180 90"), ElementsAre("M0,0 C0,-5.52 4.48,-10 10,-10"));
}

TEST_F(EnhancedPaths, CannotBeReadWhenAnEquationIsMissing)
{
    EXPECT_THAT(Read("M 0 0 L ?f7 0"), ElementsAre("-"));
    EXPECT_THAT(Read("M 0 0 L 10 10 ?f7 0"), ElementsAre("-"));
}

TEST_F(EnhancedPaths, CannotBeReadWhenACommandIsUnknownOrIncomplete)
{
    EXPECT_THAT(Read("M 0 0 K 1 1"), ElementsAre("-"));
    EXPECT_THAT(Read("M 0 0 L 1"), ElementsAre("-"));
    EXPECT_THAT(Read(""), ElementsAre("-"));
}

TEST_F(EnhancedPaths, GiveTheirFirstTextArea)
{
    formulas.Add("f0", "right-$0");

    EXPECT_EQ(TextOf(*ReadTextArea("$0 0 ?f0 100 0 0 1 1", formulas)), "25,0 50x100");
    EXPECT_FALSE(ReadTextArea("0 0 ?f9 1", formulas));
}

} // namespace
