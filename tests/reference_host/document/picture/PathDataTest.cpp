#include "reference_host/document/picture/PathData.h"

#include "tests/reference_host/document/picture/ContourText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace
{

using ReferenceHost::ParsePathData;
using ReferenceHost::ParsePoints;
using ReferenceHost::ParseTransform;
using ReferenceHost::ParseViewBox;
using ReferenceHost::PointsEnd;

std::string Read(std::string_view path)
{
    return TextOf(ParsePathData(path));
}

TEST(PathData, DrawsLinesFromPlaceToPlace)
{
    EXPECT_EQ(Read("M 1 2 L 3 4 H 10 V 20 Z"), "M1,2 L3,4 L10,4 L10,20 Z");
}

TEST(PathData, DrawsRelativeLines)
{
    EXPECT_EQ(Read("m1 2l3 4h10v20z"), "M1,2 L4,6 L14,6 L14,26 Z");
}

TEST(PathData, NeedsNoBlanksWhereANumberEnds)
{
    EXPECT_EQ(Read("m10 0-10 30h20z"), "M10,0 L0,30 L20,30 Z");
    EXPECT_EQ(Read("M.5.25-1e1+2"), "M0.5,0.25 L-10,2");
}

TEST(PathData, TakesFurtherPointsOfAMoveForLines)
{
    EXPECT_EQ(Read("M0 0 10 0 10 10"), "M0,0 L10,0 L10,10");
    EXPECT_EQ(Read("m5 5 10 0 0 10"), "M5,5 L15,5 L15,15");
}

TEST(PathData, BeginsAnewWhereAClosedPieceBegan)
{
    EXPECT_EQ(Read("M5 5h10v10zl1 1"), "M5,5 L15,5 L15,15 Z M5,5 L6,6");
}

TEST(PathData, DrawsCubicCurvesAndMirrorsTheirControlPoints)
{
    EXPECT_EQ(Read("M0 0C0 10 10 10 10 0S20-10 20 0"), "M0,0 C0,10 10,10 10,0 C10,-10 20,-10 20,0");
}

TEST(PathData, StartsASmoothCurveAtThePointWhereNothingIsToBeMirrored)
{
    EXPECT_EQ(Read("M0 0L10 0S20 10 20 0"), "M0,0 L10,0 C10,0 20,10 20,0");
}

TEST(PathData, DrawsQuadraticCurvesAsCubicOnes)
{
    EXPECT_EQ(Read("M0 0Q15 30 30 0"), "M0,0 C10,20 20,20 30,0");
    EXPECT_EQ(Read("M0 0q15 30 30 0t30 0"), "M0,0 C10,20 20,20 30,0 C40,-20 50,-20 60,0");
}

TEST(PathData, DrawsArcsTheWayTheirFlagsSay)
{
    EXPECT_EQ(Read("M0 0A10 10 0 0 1 10 10"), "M0,0 C5.52,0 10,4.48 10,10");
    EXPECT_EQ(Read("M0 0A10 10 0 0 0 10 10"), "M0,0 C0,5.52 4.48,10 10,10");
}

TEST(PathData, DrawsTheLongWayRound)
{
    const std::string path = Read("M0 0a10 10 0 1 1 10 10");

    EXPECT_TRUE(path.starts_with("M0,0 C0,-5.52 4.48,-10 10,-10 C")) << path;
    EXPECT_TRUE(path.ends_with(" 10,10")) << path;
}

TEST(PathData, ReadsFlagsWithoutBlanksBetweenThem)
{
    EXPECT_EQ(Read("M0 0A10 10 0 0110 10"), Read("M0 0A10 10 0 0 1 10 10"));
}

TEST(PathData, GrowsRadiiThatDoNotReach)
{
    EXPECT_EQ(Read("M0 0A1 1 0 0 1 20 0"), "M0,0 C0,-5.52 4.48,-10 10,-10 C15.52,-10 20,-5.52 20,0");
}

TEST(PathData, LeavesOutWhatFollowsSomethingUnreadable)
{
    EXPECT_EQ(Read("M0 0L10 10L20 R30 30"), "M0,0 L10,10");
    EXPECT_EQ(Read("nonsense"), "");
    EXPECT_EQ(Read(""), "");
}

TEST(Points, MakePolylinesAndPolygons)
{
    EXPECT_EQ(TextOf(ParsePoints("0,0 10,0 10,5", PointsEnd::Open)), "M0,0 L10,0 L10,5");
    EXPECT_EQ(TextOf(ParsePoints("0,0 10,0 10,5", PointsEnd::Closed)), "M0,0 L10,0 L10,5 Z");
}

TEST(Points, MakeNothingOfASinglePoint)
{
    EXPECT_EQ(TextOf(ParsePoints("0,0", PointsEnd::Closed)), "");
}

TEST(ViewBoxes, HaveFourNumbers)
{
    EXPECT_EQ(TextOf(*ParseViewBox("0 0 21600 21600")), "0,0 21600x21600");
    EXPECT_FALSE(ParseViewBox("0 0 1"));
}

TEST(TransformLists, TurnCounterclockwise)
{
    const auto turned = ParseTransform("rotate (1.5707963267949)");

    EXPECT_EQ(TextOf(turned.Map({10, 0})), "0,-10");
    EXPECT_EQ(TextOf(turned.Map({0, 10})), "10,0");
}

TEST(TransformLists, ApplyTheFirstOneFirst)
{
    EXPECT_EQ(TextOf(ParseTransform("rotate (1.5707963267949) translate (2cm 3cm)").Map({1000, 0})),
              "2000,2000");
}

TEST(TransformLists, HoldEveryKind)
{
    EXPECT_EQ(TextOf(ParseTransform("scale(2 3)").Map({1, 1})), "2,3");
    EXPECT_EQ(TextOf(ParseTransform("scale(2)").Map({1, 1})), "2,2");
    EXPECT_EQ(TextOf(ParseTransform("skewX (-0.785398163397448)").Map({0, 10})), "10,10");
    EXPECT_EQ(TextOf(ParseTransform("skewY(-0.785398163397448)").Map({10, 0})), "10,10");
    EXPECT_EQ(TextOf(ParseTransform("matrix(1 0 0 1 1cm 2cm)").Map({0, 0})), "1000,2000");
    EXPECT_EQ(TextOf(ParseTransform("translate(1cm)").Map({0, 0})), "1000,0");
}

TEST(TransformLists, PassOverWhatIsUnknown)
{
    EXPECT_EQ(TextOf(ParseTransform("fold(3), translate(1cm 1cm)").Map({0, 0})), "1000,1000");
    EXPECT_EQ(TextOf(ParseTransform("rotate(").Map({1, 2})), "1,2");
}

} // namespace
