#include "tests/reference_host/document/picture/ContourText.h"
#include "tests/reference_host/document/picture/ShownDrawing.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{

using testing::ElementsAre;

constexpr const char* kBox = R"( svg:x="1cm" svg:y="2cm" svg:width="4cm" svg:height="2cm")";

/// The parts of the only shape, whose element is `kind` with these attributes.
std::vector<std::string> PartsOf(const std::string& kind, const std::string& attributes)
{
    return PartsOnPage(ShowShapes("<draw:" + kind + attributes + "/>").Shape());
}

TEST(ShapeGeometry, OfARectangleIsItsBox)
{
    EXPECT_THAT(PartsOf("rect", kBox), ElementsAre("M1000,2000 L5000,2000 L5000,4000 L1000,4000 Z"));
}

TEST(ShapeGeometry, OfARectangleHasRoundCorners)
{
    const auto parts = PartsOf("rect", std::string(kBox) + R"( draw:corner-radius="1cm")");

    ASSERT_EQ(parts.size(), 1U);
    EXPECT_TRUE(parts[0].starts_with("M4000,2000 C4552.28,2000 5000,2447.72 5000,3000 C")) << parts[0];
}

TEST(ShapeGeometry, OfAnEllipseFillsItsBox)
{
    EXPECT_THAT(PartsOf("ellipse", kBox),
                ElementsAre("M5000,3000 C5000,3552.28 4104.57,4000 3000,4000 C1895.43,4000 1000,3552.28 "
                            "1000,3000 C1000,2447.72 1895.43,2000 3000,2000 C4104.57,2000 5000,2447.72 "
                            "5000,3000 Z"));
}

TEST(ShapeGeometry, OfACircleMayBeGivenByItsCentre)
{
    const ShownDrawing drawing = ShowShapes(R"(<draw:circle svg:cx="3cm" svg:cy="2cm" svg:r="1cm"/>)");

    EXPECT_EQ(TextOf(drawing.Shape().box), "2000,1000 2000x2000");
}

TEST(ShapeGeometry, OfASectionGoesByTheCentre)
{
    const auto attributes =
        R"( svg:width="2cm" svg:height="2cm" draw:kind="section" draw:start-angle="0" draw:end-angle="90")";

    // Counterclockwise: from the right to the top.
    EXPECT_THAT(PartsOf("ellipse", attributes),
                ElementsAre("M1000,1000 L2000,1000 C2000,447.72 1552.28,0 1000,0 Z"));
}

TEST(ShapeGeometry, OfACutIsClosedByALine)
{
    const auto attributes =
        R"( svg:width="2cm" svg:height="2cm" draw:kind="cut" draw:start-angle="270" draw:end-angle="0")";

    EXPECT_THAT(PartsOf("ellipse", attributes),
                ElementsAre("M1000,2000 C1552.28,2000 2000,1552.28 2000,1000 Z"));
}

TEST(ShapeGeometry, OfAnArcIsALine)
{
    const auto attributes =
        R"( svg:width="2cm" svg:height="2cm" draw:kind="arc" draw:start-angle="90" draw:end-angle="180")";

    EXPECT_THAT(PartsOf("ellipse", attributes), ElementsAre("M1000,0 C447.72,0 0,447.72 0,1000 unfilled"));
}

TEST(ShapeGeometry, OfALineGoesFromEndToEnd)
{
    const ShownDrawing drawing =
        ShowShapes(R"(<draw:line svg:x1="5cm" svg:y1="1cm" svg:x2="1cm" svg:y2="2cm"/>)");

    EXPECT_THAT(PartsOnPage(drawing.Shape()), ElementsAre("M5000,1000 L1000,2000 unfilled"));
    EXPECT_TRUE(drawing.Shape().isLine);
    EXPECT_EQ(TextOf(drawing.Shape().box), "1000,1000 4000x1000");
}

TEST(ShapeGeometry, OfPolygonsAndPolylinesIsFittedToTheBox)
{
    const std::string points =
        std::string(kBox) + R"( svg:viewBox="0 0 400 100" draw:points="0,0 400,0 200,100")";

    EXPECT_THAT(PartsOf("polygon", points), ElementsAre("M1000,2000 L5000,2000 L3000,4000 Z"));
    EXPECT_THAT(PartsOf("polyline", points), ElementsAre("M1000,2000 L5000,2000 L3000,4000 unfilled"));
}

TEST(ShapeGeometry, OfAPathIsFittedToTheBox)
{
    EXPECT_THAT(PartsOf("path", std::string(kBox) + R"( svg:viewBox="0 0 40 20" svg:d="M0 0h40v20z")"),
                ElementsAre("M1000,2000 L5000,2000 L5000,4000 Z"));
    EXPECT_THAT(PartsOf("path", std::string(kBox) + R"( svg:viewBox="0 0 40 20" svg:d="M0 0h40v20")"),
                ElementsAre("M1000,2000 L5000,2000 L5000,4000 unfilled"));
}

TEST(ShapeGeometry, OfAFlatPathIsNotStretched)
{
    const auto attributes =
        R"( svg:x="1cm" svg:y="2cm" svg:width="4cm" svg:height="0cm" svg:viewBox="0 0 400 0" svg:d="M0 0h400")";

    EXPECT_THAT(PartsOf("path", attributes), ElementsAre("M1000,2000 L5000,2000 unfilled"));
}

TEST(ShapeGeometry, OfAConnectorFollowsItsPath)
{
    const auto attributes =
        R"( svg:x1="1cm" svg:y1="1cm" svg:x2="3cm" svg:y2="2cm" svg:d="M1000 1000h1000v1000h1000")"
        R"( svg:viewBox="0 0 2001 1001")";

    EXPECT_THAT(PartsOf("connector", attributes),
                ElementsAre("M1000,1000 L2000,1000 L2000,2000 L3000,2000 unfilled"));
}

TEST(ShapeGeometry, OfAConnectorBeginsWhereItSays)
{
    const auto attributes = R"( svg:x1="1cm" svg:y1="1cm" svg:x2="3cm" svg:y2="1cm" svg:d="M0 0h2000")";

    EXPECT_THAT(PartsOf("connector", attributes), ElementsAre("M1000,1000 L3000,1000 unfilled"));
}

TEST(ShapeGeometry, OfAConnectorWithoutAPathGoesAcrossAndDown)
{
    EXPECT_THAT(PartsOf("connector", R"( svg:x1="1cm" svg:y1="1cm" svg:x2="3cm" svg:y2="2cm")"),
                ElementsAre("M1000,1000 L2000,1000 L2000,2000 L3000,2000 unfilled"));
}

TEST(ShapeGeometry, OfAConnectorThatIsALineIsStraight)
{
    EXPECT_THAT(
        PartsOf("connector", R"( draw:type="line" svg:x1="1cm" svg:y1="1cm" svg:x2="3cm" svg:y2="2cm")"),
        ElementsAre("M1000,1000 L3000,2000 unfilled"));
}

TEST(ShapeGeometry, OfAMeasureIsALineBesideWithAGuideFromEachEnd)
{
    const ShownDrawing drawing(
        FlatDrawing()
            .Automatic("graphic", R"(style:name="m")",
                       R"(<style:graphic-properties draw:line-distance="1cm" draw:guide-overhang="2mm")"
                       R"( draw:guide-distance="1mm"/>)")
            .Page(
                R"(<draw:measure draw:style-name="m" svg:x1="1cm" svg:y1="3cm" svg:x2="5cm" svg:y2="3cm"/>)")
            .Open());

    EXPECT_THAT(PartsOnPage(drawing.Shape()),
                ElementsAre("M1000,2000 L5000,2000 unfilled", "M1000,2900 L1000,1800 unfilled",
                            "M5000,2900 L5000,1800 unfilled"));
    EXPECT_TRUE(drawing.Shape().parts[0].mayHaveArrows);
    EXPECT_FALSE(drawing.Shape().parts[1].mayHaveArrows);
    EXPECT_TRUE(drawing.Shape().isTextAbove);
}

TEST(ShapeGeometry, OfALineTurnsItsTextSoThatItCanBeRead)
{
    const auto angleOf = [](const std::string& ends)
    { return ShowShapes("<draw:line svg:x1=\"5cm\" svg:y1=\"5cm\" " + ends + "/>").Shape().textAngle; };

    EXPECT_NEAR(angleOf(R"(svg:x2="6cm" svg:y2="6cm")"), 45, 1e-9);
    EXPECT_NEAR(angleOf(R"(svg:x2="4cm" svg:y2="4cm")"), 45, 1e-9) << "not upside down";
    EXPECT_NEAR(angleOf(R"(svg:x2="4cm" svg:y2="6cm")"), -45, 1e-9);
}

TEST(ShapeGeometry, OfARegularPolygonBeginsAtTheTop)
{
    const std::string square = R"( svg:width="2cm" svg:height="2cm" draw:corners="4")";

    EXPECT_THAT(PartsOf("regular-polygon", square + R"( draw:concave="false")"),
                ElementsAre("M1000,0 L2000,1000 L1000,2000 L0,1000 Z"));
    EXPECT_EQ(
        PartsOf("regular-polygon", square + R"( draw:concave="true" draw:sharpness="50%")")[0].substr(0, 31),
        "M1000,0 L1353.55,646.45 L2000,1");
}

TEST(ShapeGeometry, OfACaptionHasALineToItsPoint)
{
    EXPECT_THAT(
        PartsOf("caption", std::string(kBox) + R"( draw:caption-point-x="-1cm" draw:caption-point-y="1cm")"),
        ElementsAre("M1000,2000 L5000,2000 L5000,4000 L1000,4000 Z", "M0,3000 L1000,3000 unfilled"));
}

TEST(ShapeGeometry, OfATextBoxIsAtLeastAsHighAsItAsksFor)
{
    const ShownDrawing drawing = ShowShapes(R"(<draw:frame svg:width="4cm" svg:x="1cm" svg:y="1cm">)"
                                            R"(<draw:text-box fo:min-height="1cm"/></draw:frame>)");

    EXPECT_EQ(TextOf(drawing.Shape().box), "1000,1000 4000x1000");
    EXPECT_EQ(TextOf(drawing.Shape().textArea), "1000,1000 4000x1000");
}

TEST(ShapeGeometry, OfKindsWithoutAnOutlineStandsForThem)
{
    const ShownDrawing drawing = ShowShapes(std::string("<draw:control") + kBox + "/>");

    EXPECT_THAT(PartsOnPage(drawing.Shape()), ElementsAre("M1000,2000 L5000,2000 L5000,4000 L1000,4000 Z"));
    EXPECT_FALSE(drawing.Shape().isExact);
}

TEST(ShapeGeometry, IsTurnedAndMoved)
{
    const auto attributes = R"( svg:width="4cm" svg:height="2cm")"
                            R"x( draw:transform="rotate (1.5707963267949) translate (2cm 6cm)")x";

    EXPECT_THAT(PartsOf("rect", attributes), ElementsAre("M2000,6000 L2000,2000 L4000,2000 L4000,6000 Z"));
}

} // namespace
