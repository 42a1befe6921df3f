#include "reference_host/document/picture/Geometry.h"

#include "reference_host/document/picture/ContourBuilder.h"
#include "tests/reference_host/document/picture/ContourText.h"

#include <gtest/gtest.h>

namespace
{

using ReferenceHost::BoundsOf;
using ReferenceHost::Box;
using ReferenceHost::ContourBuilder;
using ReferenceHost::RectangleContour;
using ReferenceHost::Transform;

TEST(Transforms, AreAppliedInOrder)
{
    const Transform doubled{2, 0, 0, 2, 0, 0};
    const Transform moved{1, 0, 0, 1, 10, 20};

    EXPECT_EQ(TextOf(doubled.Then(moved).Map({1, 2})), "12,24");
    EXPECT_EQ(TextOf(moved.Then(doubled).Map({1, 2})), "22,44");
}

TEST(Transforms, TurnOneBoxIntoAnother)
{
    const Transform transform = Transform::Between({10, 10, 20, 40}, {0, 100, 40, 20});

    EXPECT_EQ(TextOf(transform.Map({10, 10})), "0,100");
    EXPECT_EQ(TextOf(transform.Map({30, 50})), "40,120");
}

TEST(Transforms, OnlyMoveABoxWithoutExtent)
{
    EXPECT_EQ(TextOf(Transform::Between({5, 5, 0, 0}, {7, 8, 90, 90}).Map({5, 5})), "7,8");
}

TEST(Bounds, HoldAllPointsOfACurve)
{
    ContourBuilder builder;
    builder.MoveTo({1, 2});
    builder.CurveTo({-3, 4}, {10, 20}, {5, 6});

    EXPECT_EQ(TextOf(BoundsOf(builder.Take())), "-3,2 13x18");
}

TEST(Bounds, AreWithoutExtentForNothing)
{
    EXPECT_EQ(BoundsOf({}), Box{});
}

TEST(Rectangles, AreClosedAndClockwise)
{
    EXPECT_EQ(TextOf(RectangleContour({1, 2, 10, 20})), "M1,2 L11,2 L11,22 L1,22 Z");
}

TEST(Rectangles, HaveRoundCorners)
{
    EXPECT_EQ(TextOf(RectangleContour({0, 0, 100, 60}, 10)),
              "M90,0 C95.52,0 100,4.48 100,10 L100,50 C100,55.52 95.52,60 90,60 "
              "L10,60 C4.48,60 0,55.52 0,50 L0,10 C0,4.48 4.48,0 10,0 Z");
}

TEST(Rectangles, RoundCornersNoFartherThanHalfASide)
{
    EXPECT_EQ(TextOf(BoundsOf(RectangleContour({0, 0, 100, 60}, 500))), "0,0 100x60");
}

TEST(Arcs, AreDividedIntoQuarters)
{
    ContourBuilder builder;
    builder.Follow({{0, 0}, 10, 20}, 0, 180, false);

    EXPECT_EQ(TextOf(builder.Take()), "M10,0 C10,11.05 5.52,20 0,20 C-5.52,20 -10,11.05 -10,0");
}

TEST(Arcs, BeginWithALineFromAnOpenPiece)
{
    ContourBuilder builder;
    builder.MoveTo({0, 0});
    builder.Follow({{0, 0}, 10, 10}, 0, -90, true);

    EXPECT_EQ(TextOf(builder.Take()), "M0,0 L10,0 C10,-5.52 5.52,-10 0,-10");
}

} // namespace
