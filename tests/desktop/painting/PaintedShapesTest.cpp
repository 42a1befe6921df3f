#include "tests/desktop/canvas/CanvasFixture.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace
{

/// A square of 8 cm at (4, 4) cm.
constexpr const char* kSquare = R"(<draw:rect svg:x="4cm" svg:y="4cm" svg:width="8cm" svg:height="8cm"/>)";

const QColor kWhite(255, 255, 255);

class PaintedShapes : public CanvasTest
{
protected:
    void ShowWith(const std::string& properties, const std::string& shapes = kSquare,
                  const std::string& definitions = "")
    {
        Show(FlatDrawing()
                 .Defaults("<style:graphic-properties " + properties + "/>")
                 .Styles(definitions)
                 .Page(shapes));
    }

    /// How far two colours are apart in their most different component.
    static int Difference(QColor left, QColor right)
    {
        return std::max({std::abs(left.red() - right.red()), std::abs(left.green() - right.green()),
                         std::abs(left.blue() - right.blue())});
    }

    /// How many pixels within a rectangle of the page are darker than that; than the page where nothing is
    /// said.
    int PaintedPixels(QRectF onPage, int lightness = 250)
    {
        const QRect inWidget =
            QRectF(canvas.ToWidget(onPage.topLeft()), canvas.ToWidget(onPage.bottomRight())).toRect();
        const QImage picture = Picture();
        int count = 0;
        for (int y = inWidget.top(); y <= inWidget.bottom(); ++y)
        {
            for (int x = inWidget.left(); x <= inWidget.right(); ++x)
                count += picture.pixelColor(x, y).lightness() < lightness ? 1 : 0;
        }
        return count;
    }
};

TEST_F(PaintedShapes, AreFilledWithTheirColour)
{
    ShowWith(R"(draw:fill="solid" draw:fill-color="#3366cc" draw:stroke="none")");

    EXPECT_EQ(ColourAt(8000, 8000), QColor(0x33, 0x66, 0xcc));
    EXPECT_EQ(ColourAt(3000, 8000), kWhite);
}

TEST_F(PaintedShapes, AreEmptyWithoutAFill)
{
    ShowWith(R"(draw:fill="none" draw:fill-color="#3366cc" draw:stroke="none")");

    EXPECT_EQ(ColourAt(8000, 8000), kWhite);
}

TEST_F(PaintedShapes, LetThroughWhatTheirTransparencySays)
{
    ShowWith(R"(draw:fill="solid" draw:fill-color="#000000" draw:opacity="25%" draw:stroke="none")");

    EXPECT_LE(Difference(ColourAt(8000, 8000), QColor(191, 191, 191)), 2);
}

TEST_F(PaintedShapes, HaveALineAroundThem)
{
    ShowWith(R"(draw:fill="none" draw:stroke="solid" svg:stroke-color="#00aa00" svg:stroke-width="1cm")");

    EXPECT_EQ(ColourAt(4300, 8000), QColor(0, 0xaa, 0));
    EXPECT_EQ(ColourAt(3700, 8000), QColor(0, 0xaa, 0));
    EXPECT_EQ(ColourAt(8000, 8000), kWhite);
}

TEST_F(PaintedShapes, HaveGapsInDashedLines)
{
    ShowWith(
        R"(draw:fill="none" draw:stroke="dash" draw:stroke-dash="D" svg:stroke-color="#000000" svg:stroke-width="1cm")",
        R"(<draw:line svg:x1="2cm" svg:y1="2cm" svg:x2="18cm" svg:y2="2cm"/>)",
        R"(<draw:stroke-dash draw:name="D" draw:style="rect" draw:dots1="1" draw:dots1-length="2cm" draw:distance="2cm"/>)");

    EXPECT_EQ(ColourAt(3000, 2000), QColor(0, 0, 0));
    EXPECT_EQ(ColourAt(5000, 2000), kWhite);
    EXPECT_EQ(ColourAt(7000, 2000), QColor(0, 0, 0));
}

TEST_F(PaintedShapes, EndInArrows)
{
    ShowWith(
        R"(draw:stroke="solid" svg:stroke-color="#000000" svg:stroke-width="1mm" draw:marker-end="A" draw:marker-end-width="4cm")",
        R"(<draw:line svg:x1="2cm" svg:y1="8cm" svg:x2="18cm" svg:y2="8cm"/>)",
        R"(<draw:marker draw:name="A" svg:viewBox="0 0 20 30" svg:d="m10 0-10 30h20z"/>)");

    // The arrow is 6 cm long; it is as wide as half of its 4 cm in the middle, and a tip at the end.
    EXPECT_EQ(ColourAt(15000, 8700), QColor(0, 0, 0));
    EXPECT_EQ(ColourAt(15000, 7300), QColor(0, 0, 0));
    EXPECT_EQ(ColourAt(17500, 8700), kWhite);
    EXPECT_EQ(ColourAt(6000, 8700), kWhite);
}

TEST_F(PaintedShapes, GoFromTheStartOfAGradientToItsEnd)
{
    ShowWith(
        R"(draw:fill="gradient" draw:fill-gradient-name="G" draw:stroke="none")", kSquare,
        R"(<draw:gradient draw:name="G" draw:style="linear" draw:start-color="#ff0000" draw:end-color="#0000ff" draw:angle="0"/>)");

    EXPECT_LE(Difference(ColourAt(8000, 4100), QColor(255, 0, 0)), 12);
    EXPECT_LE(Difference(ColourAt(8000, 11900), QColor(0, 0, 255)), 12);
    EXPECT_LE(Difference(ColourAt(8000, 8000), QColor(128, 0, 128)), 12);
}

TEST_F(PaintedShapes, TurnTheirGradients)
{
    ShowWith(
        R"(draw:fill="gradient" draw:fill-gradient-name="G" draw:stroke="none")", kSquare,
        R"(<draw:gradient draw:name="G" draw:style="linear" draw:start-color="#ff0000" draw:end-color="#0000ff" draw:angle="900"/>)");

    EXPECT_LE(Difference(ColourAt(4100, 8000), QColor(255, 0, 0)), 12);
    EXPECT_LE(Difference(ColourAt(11900, 8000), QColor(0, 0, 255)), 12);
}

TEST_F(PaintedShapes, HaveTheEndOfARoundGradientInTheMiddle)
{
    for (const char* const kind : {"radial", "ellipsoid", "square", "rectangular"})
    {
        ShowWith(
            R"(draw:fill="gradient" draw:fill-gradient-name="G" draw:stroke="none")", kSquare,
            std::string(
                R"(<draw:gradient draw:name="G" draw:start-color="#ff0000" draw:end-color="#0000ff" draw:style=")") +
                kind + "\"/>");

        EXPECT_LE(Difference(ColourAt(8000, 8000), QColor(0, 0, 255)), 12) << kind;
        EXPECT_GT(ColourAt(4100, 4100).red(), 200) << kind;
    }
}

TEST_F(PaintedShapes, HaveTheLinesOfAHatch)
{
    ShowWith(
        R"(draw:fill="hatch" draw:fill-hatch-name="H" draw:stroke="none")", kSquare,
        R"(<draw:hatch draw:name="H" draw:style="single" draw:color="#000000" draw:distance="1cm" draw:rotation="0"/>)");

    EXPECT_GT(PaintedPixels(QRectF(4500, 7800, 7000, 400)), 100) << "a line through the middle";
    EXPECT_EQ(PaintedPixels(QRectF(4500, 8200, 7000, 500)), 0) << "nothing up to the next";
}

TEST_F(PaintedShapes, TakeThePlainColourForADefinitionThatIsMissing)
{
    ShowWith(
        R"(draw:fill="gradient" draw:fill-gradient-name="G" draw:fill-color="#3366cc" draw:stroke="none")");

    EXPECT_EQ(ColourAt(8000, 8000), QColor(0x33, 0x66, 0xcc));
}

TEST_F(PaintedShapes, ShowTheirText)
{
    ShowWith(
        R"(draw:fill="none" draw:stroke="none" draw:textarea-vertical-align="bottom")",
        R"(<draw:rect svg:x="4cm" svg:y="4cm" svg:width="8cm" svg:height="8cm"><text:p>MMMM</text:p></draw:rect>)");

    EXPECT_GT(PaintedPixels(QRectF(4000, 11000, 4000, 1000)), 20);
    EXPECT_EQ(PaintedPixels(QRectF(4000, 4000, 8000, 6000)), 0);
}

TEST_F(PaintedShapes, ShowTheirPictures)
{
    // Two by two pixels, all green.
    ShowWith(
        R"(draw:fill="none" draw:stroke="none")",
        R"(<draw:frame svg:x="4cm" svg:y="4cm" svg:width="8cm" svg:height="8cm"><draw:image><office:binary-data>)"
        "UDYKMiAyCjI1NQoA/wAA/wAA/wAA/wA="
        R"(</office:binary-data></draw:image></draw:frame>)");

    EXPECT_EQ(ColourAt(8000, 8000), QColor(0, 255, 0));
}

TEST_F(PaintedShapes, ChangeWithTheStylesWhenTheyAreRefreshed)
{
    ShowWith(R"(draw:fill="solid" draw:fill-color="#3366cc" draw:stroke="none")");
    EXPECT_EQ(ColourAt(8000, 8000), QColor(0x33, 0x66, 0xcc));
    session->GetDrawing().GetDefaultStyle().SetPathProperty(
        {Styles::FillStyleCategoryName,
         Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"type"))},
        OvxUtils::Any(Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"none"))));

    canvas.RefreshStyles();

    EXPECT_EQ(ColourAt(8000, 8000), kWhite);
}

TEST_F(PaintedShapes, HaveTheStartOfAnAxialGradientInTheMiddle)
{
    ShowWith(
        R"(draw:fill="gradient" draw:fill-gradient-name="G" draw:stroke="none")", kSquare,
        R"(<draw:gradient draw:name="G" draw:style="axial" draw:start-color="#ff0000" draw:end-color="#0000ff"/>)");

    EXPECT_LE(Difference(ColourAt(8000, 8000), QColor(255, 0, 0)), 12);
    EXPECT_LE(Difference(ColourAt(8000, 4100), QColor(0, 0, 255)), 12);
    EXPECT_LE(Difference(ColourAt(8000, 11900), QColor(0, 0, 255)), 12);
}

TEST_F(PaintedShapes, HaveAsManyColoursAsTheirGradientHasSteps)
{
    ShowWith(
        R"(draw:fill="gradient" draw:fill-gradient-name="G" draw:gradient-step-count="4" draw:stroke="none")",
        kSquare,
        R"(<draw:gradient draw:name="G" draw:style="linear" draw:start-color="#ff0000" draw:end-color="#0000ff"/>)");

    // Each step is 2 cm high.
    EXPECT_EQ(ColourAt(8000, 4300), ColourAt(8000, 5700));
    EXPECT_EQ(ColourAt(8000, 6300), ColourAt(8000, 7700));
    EXPECT_NE(ColourAt(8000, 5700), ColourAt(8000, 6300));
}

TEST_F(PaintedShapes, FadeAsTheirOpacitySays)
{
    ShowWith(R"(draw:fill="solid" draw:fill-color="#000000" draw:opacity-name="O" draw:stroke="none")",
             kSquare, R"(<draw:opacity draw:name="O" draw:style="linear" draw:start="100%" draw:end="0%"/>)");

    EXPECT_LE(ColourAt(8000, 4100).lightness(), 12);
    EXPECT_LE(Difference(ColourAt(8000, 8000), QColor(128, 128, 128)), 12);
    EXPECT_GE(ColourAt(8000, 11900).lightness(), 243);
    EXPECT_EQ(ColourAt(3000, 8000), kWhite);
}

TEST_F(PaintedShapes, ThrowTheirShadowBehindThem)
{
    ShowWith(R"(draw:fill="solid" draw:fill-color="#3366cc" draw:stroke="none" draw:shadow="visible")"
             R"( draw:shadow-offset-x="2cm" draw:shadow-offset-y="1cm" draw:shadow-color="#ff0000")");

    EXPECT_EQ(ColourAt(11000, 8000), QColor(0x33, 0x66, 0xcc));
    EXPECT_EQ(ColourAt(13500, 8000), QColor(255, 0, 0));
    EXPECT_EQ(ColourAt(13500, 4500), kWhite) << "above the shadow, which is 1 cm lower";
}

TEST_F(PaintedShapes, PaintTransparentArrowsOverTheirLineOnce)
{
    ShowWith(
        R"(draw:stroke="solid" svg:stroke-color="#000000" svg:stroke-width="1cm" svg:stroke-opacity="50%" draw:marker-end="A" draw:marker-end-width="4cm")",
        R"(<draw:line svg:x1="2cm" svg:y1="8cm" svg:x2="18cm" svg:y2="8cm"/>)",
        R"(<draw:marker draw:name="A" svg:viewBox="0 0 20 20" svg:d="m10 0-10 20h20z"/>)");

    // The arrow begins at 14 cm, and the line reaches a little into it.
    EXPECT_EQ(ColourAt(14300, 8000), ColourAt(8000, 8000));
}

TEST_F(PaintedShapes, PutBitmapsWhereTheyAreAnchored)
{
    ShowWith(
        R"(draw:fill="bitmap" draw:fill-image-name="B" style:repeat="no-repeat" draw:fill-image-width="2cm")"
        R"( draw:fill-image-height="2cm" draw:fill-image-ref-point="top-left" draw:stroke="none")",
        kSquare,
        R"(<draw:fill-image draw:name="B"><office:binary-data>UDYKMiAyCjI1NQoA/wAA/wAA/wAA/wA=</office:binary-data></draw:fill-image>)");

    EXPECT_EQ(ColourAt(5000, 5000), QColor(0, 255, 0));
    EXPECT_EQ(ColourAt(8000, 8000), kWhite);
}

TEST_F(PaintedShapes, StandForWhatCannotBeShown)
{
    ShowWith(
        R"(draw:fill="none" draw:stroke="none")",
        R"(<draw:frame svg:x="4cm" svg:y="4cm" svg:width="8cm" svg:height="8cm"><draw:object/></draw:frame>)");

    EXPECT_NE(ColourAt(5000, 5000), kWhite) << "the inside";
    EXPECT_GT(PaintedPixels(QRectF(5000, 7000, 6000, 2000), 150), 0) << "the name in the middle";
    EXPECT_EQ(PaintedPixels(QRectF(5000, 4500, 6000, 2000), 150), 0);
}

TEST_F(PaintedShapes, HaveBulletsBeforeTheirText)
{
    const std::string shape =
        R"(<draw:rect svg:x="4cm" svg:y="4cm" svg:width="8cm" svg:height="8cm"><text:list text:style-name="L">)"
        R"(<text:list-item><text:p>M</text:p></text:list-item></text:list></draw:rect>)";
    ShowWith(
        R"(draw:fill="none" draw:stroke="none")", shape,
        R"(<text:list-style style:name="L"><text:list-level-style-number text:level="1" style:num-format="1">)"
        R"(<style:list-level-properties text:min-label-width="3cm"/></text:list-level-style-number>)"
        R"(</text:list-style>)");

    EXPECT_GT(PaintedPixels(QRectF(4000, 4000, 1000, 1000)), 3) << "the number";
    EXPECT_EQ(PaintedPixels(QRectF(5500, 4000, 1200, 1000)), 0) << "its room";
    EXPECT_GT(PaintedPixels(QRectF(7000, 4000, 1000, 1000)), 3) << "the text";
}

TEST_F(PaintedShapes, TurnTheTextOfLines)
{
    ShowWith(
        R"(draw:stroke="none")",
        R"(<draw:line svg:x1="10cm" svg:y1="2cm" svg:x2="10cm" svg:y2="18cm"><text:p>MMMMMMMM</text:p></draw:line>)");

    EXPECT_GT(PaintedPixels(QRectF(9500, 11000, 1000, 1000)), 3) << "below the middle";
    EXPECT_EQ(PaintedPixels(QRectF(11000, 9500, 1000, 1000)), 0) << "beside it";
}

TEST_F(PaintedShapes, StandBeforeTheBackgroundOfThePage)
{
    std::string text =
        FlatDrawing()
            .Defaults(
                R"(<style:graphic-properties draw:fill="solid" draw:fill-color="#3366cc" draw:stroke="none"/>)")
            .Automatic(
                R"(<style:style style:name="dp1" style:family="drawing-page"><style:drawing-page-properties)"
                R"( draw:fill="solid" draw:fill-color="#ffff00"/></style:style>)")
            .Page(kSquare)
            .Text();
    const std::string page = "<draw:page";
    text.insert(text.find(page) + page.size(), R"( draw:style-name="dp1")");

    ShowText(text);

    EXPECT_EQ(ColourAt(2000, 2000), QColor(255, 255, 0));
    EXPECT_EQ(ColourAt(8000, 8000), QColor(0x33, 0x66, 0xcc));
}

} // namespace
