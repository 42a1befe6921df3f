#include "tests/reference_host/document/picture/ContourText.h"
#include "tests/reference_host/document/picture/ShownDrawing.h"

#include <gmock/gmock.h>

#include <string>

namespace
{

using ReferenceHost::Definitions;
using ReferenceHost::GradientDefinition;
using testing::ElementsAre;
using Rgb = CLR_COLORSPEC::Rgb;
using Stop = GradientDefinition::Stop;

Definitions Define(const std::string& xml)
{
    return ShownDrawing(FlatDrawing().Styles(xml).Page("").Open()).picture.definitions;
}

TEST(DefinedGradients, HaveColoursAngleBorderAndCentre)
{
    const Definitions all = Define(
        R"(<draw:gradient draw:name="Deep_20_Sea" draw:style="radial" draw:cx="25%" draw:cy="75%")"
        R"( draw:start-color="#102030" draw:end-color="#ffffff" draw:angle="300" draw:border="10%"/>)");

    const GradientDefinition& gradient = all.gradients.at(L"Deep Sea");
    EXPECT_EQ(gradient.kind, GradientDefinition::Kind::Radial);
    EXPECT_THAT(gradient.stops, ElementsAre(Stop{0, Rgb{16, 32, 48}}, Stop{1, Rgb{255, 255, 255}}));
    EXPECT_DOUBLE_EQ(gradient.angle, 30);
    EXPECT_DOUBLE_EQ(gradient.border, 0.1);
    EXPECT_EQ(TextOf(gradient.centre), "0.25,0.75");
}

TEST(DefinedGradients, AreDimmedByTheirIntensities)
{
    const Definitions all =
        Define(R"(<draw:gradient draw:name="G" draw:style="linear" draw:start-color="#ffffff")"
               R"( draw:end-color="#64c800" draw:start-intensity="0%" draw:end-intensity="50%"/>)");

    EXPECT_THAT(all.gradients.at(L"G").stops, ElementsAre(Stop{0, Rgb{0, 0, 0}}, Stop{1, Rgb{50, 100, 0}}));
}

TEST(DefinedGradients, ReadAnglesInTheirUnits)
{
    const auto angle = [](const std::string& text)
    {
        return Define(R"(<draw:gradient draw:name="G" draw:style="linear" draw:angle=")" + text + "\"/>")
            .gradients.at(L"G")
            .angle;
    };

    EXPECT_DOUBLE_EQ(angle("30deg"), 30);
    EXPECT_NEAR(angle("1.5707963267949rad"), 90, 1e-9);
    EXPECT_DOUBLE_EQ(angle("450"), 45);
}

TEST(DefinedGradients, MayHaveManyStops)
{
    const Definitions all =
        Define(R"(<svg:linearGradient draw:name="G"><svg:stop svg:offset="0" svg:stop-color="#ff0000"/>)"
               R"(<svg:stop svg:offset="0.5" svg:stop-color="#00ff00"/>)"
               R"(<svg:stop svg:offset="1" svg:stop-color="#0000ff"/></svg:linearGradient>)");

    EXPECT_THAT(all.gradients.at(L"G").stops,
                ElementsAre(Stop{0, Rgb{255, 0, 0}}, Stop{0.5, Rgb{0, 255, 0}}, Stop{1, Rgb{0, 0, 255}}));
}

TEST(DefinedHatches, HaveDirectionsDistanceAndAngle)
{
    const Definitions all =
        Define(R"(<draw:hatch draw:name="H" draw:display-name="Cross" draw:style="double")"
               R"( draw:color="#ff0000" draw:distance="0.2cm" draw:rotation="450"/>)");

    const auto& hatch = all.hatches.at(L"Cross");
    EXPECT_EQ(hatch.directions, 2);
    EXPECT_EQ(hatch.colour, (Rgb{255, 0, 0}));
    EXPECT_DOUBLE_EQ(hatch.distance, 200);
    EXPECT_DOUBLE_EQ(hatch.angle, 45);
}

TEST(DefinedDashes, HaveLengthsAndSharesOfTheWidth)
{
    const Definitions all =
        Define(R"(<draw:stroke-dash draw:name="D" draw:style="round" draw:dots1="2")"
               R"( draw:dots1-length="1mm" draw:dots2="1" draw:dots2-length="300%" draw:distance="50%"/>)");

    const auto& dash = all.dashes.at(L"D");
    EXPECT_TRUE(dash.isRound);
    EXPECT_EQ(dash.firstDots, 2);
    EXPECT_DOUBLE_EQ(dash.firstLength.At(20), 100);
    EXPECT_DOUBLE_EQ(dash.secondLength.At(20), 60);
    EXPECT_DOUBLE_EQ(dash.distance.At(20), 10);
}

TEST(DefinedMarkers, HaveAPathAndAViewBox)
{
    const Definitions all =
        Define(R"(<draw:marker draw:name="Arrow" svg:viewBox="0 0 20 30" svg:d="m10 0-10 30h20z"/>)");

    EXPECT_EQ(TextOf(all.markers.at(L"Arrow").contour), "M10,0 L0,30 L20,30 Z");
    EXPECT_EQ(TextOf(all.markers.at(L"Arrow").viewBox), "0,0 20x30");
}

TEST(DefinedMarkers, WithoutExtentAreLeftOut)
{
    EXPECT_TRUE(
        Define(R"(<draw:marker draw:name="Arrow" svg:viewBox="0 0 0 0" svg:d="m0 0"/>)").markers.empty());
}

TEST(DefinedBitmaps, HoldTheBytesOfThePicture)
{
    const Definitions all =
        Define(R"(<draw:fill-image draw:name="B"><office:binary-data>c3R5bGU=</office:binary-data>)"
               R"(</draw:fill-image><draw:fill-image draw:name="Lost" xlink:href="Pictures/none.png"/>)");

    ASSERT_EQ(all.bitmaps.size(), 1U);
    EXPECT_EQ(*all.bitmaps.at(L"B"), "style");
}

TEST(DefinedOpacities, AreGreysUnderTheNamesInTheFile)
{
    const Definitions all = Define(
        R"(<draw:opacity draw:name="See_20_through" draw:display-name="See through" draw:style="axial")"
        R"( draw:start="100%" draw:end="20%"/>)");

    const GradientDefinition& opacity = all.opacities.at(L"See_20_through");
    EXPECT_EQ(opacity.kind, GradientDefinition::Kind::Axial);
    EXPECT_THAT(opacity.stops, ElementsAre(Stop{0, Rgb{255, 255, 255}}, Stop{1, Rgb{51, 51, 51}}));
}

} // namespace
