#include "tests/reference_host/document/picture/ContourText.h"
#include "tests/reference_host/document/picture/ShownDrawing.h"

#include <gmock/gmock.h>

#include <string>

namespace
{

using testing::ElementsAre;

/// A drawing with one custom shape, 4 by 2 cm at (1 cm, 2 cm).
ShownDrawing ShowCustom(const std::string& attributes, const std::string& equations = "")
{
    return ShowShapes(R"(<draw:custom-shape svg:x="1cm" svg:y="2cm" svg:width="4cm" svg:height="2cm">)"
                      "<draw:enhanced-geometry" +
                      attributes + ">" + equations + "</draw:enhanced-geometry></draw:custom-shape>");
}

TEST(CustomShapes, AreFittedToTheirBox)
{
    const ShownDrawing drawing =
        ShowCustom(R"( svg:viewBox="0 0 100 100" draw:enhanced-path="M 0 0 L 100 0 50 100 Z N")");

    EXPECT_THAT(PartsOnPage(drawing.Shape()), ElementsAre("M1000,2000 L5000,2000 L3000,4000 Z"));
    EXPECT_TRUE(drawing.Shape().isExact);
}

TEST(CustomShapes, EvaluateEquationsWithTheirModifiers)
{
    const ShownDrawing drawing = ShowCustom(
        R"( svg:viewBox="0 0 100 100" draw:modifiers="10 25" draw:enhanced-path="M ?f0 0 L ?f1 100 N")",
        R"(<draw:equation draw:name="f0" draw:formula="$1 *2"/>)"
        R"(<draw:equation draw:name="f1" draw:formula="right-?f0 -$0"/>)");

    EXPECT_THAT(PartsOnPage(drawing.Shape()), ElementsAre("M3000,2000 L2600,4000"));
}

TEST(CustomShapes, AreMirrored)
{
    const auto path = R"( svg:viewBox="0 0 100 100" draw:enhanced-path="M 0 0 L 25 0")";

    EXPECT_THAT(PartsOnPage(ShowCustom(std::string(path) + R"( draw:mirror-horizontal="true")").Shape()),
                ElementsAre("M5000,2000 L4000,2000"));
    EXPECT_THAT(PartsOnPage(ShowCustom(std::string(path) + R"( draw:mirror-vertical="true")").Shape()),
                ElementsAre("M1000,4000 L2000,4000"));
}

TEST(CustomShapes, WithoutAViewBoxAreInTheLengthsOfThePage)
{
    const ShownDrawing drawing =
        ShowCustom(R"( svg:viewBox="0 0 0 0" draw:enhanced-path="M 0 0 L logwidth 0 logwidth 500 Z")");

    EXPECT_THAT(PartsOnPage(drawing.Shape()), ElementsAre("M1000,2000 L5000,2000 L5000,2500 Z"));
}

TEST(CustomShapes, HaveATextArea)
{
    const ShownDrawing drawing = ShowCustom(
        R"( svg:viewBox="0 0 100 100" draw:text-areas="25 0 75 50" draw:enhanced-path="M 0 0 L 1 1")");

    EXPECT_EQ(TextOf(drawing.Shape().textArea), "2000,2000 2000x1000");
}

TEST(CustomShapes, MoveTheirTextAreaWhenTheyAreMirrored)
{
    const ShownDrawing drawing =
        ShowCustom(R"( svg:viewBox="0 0 100 100" draw:text-areas="0 0 50 50" draw:mirror-horizontal="true")"
                   R"( draw:enhanced-path="M 0 0 L 1 1")");

    EXPECT_EQ(TextOf(drawing.Shape().textArea), "3000,2000 2000x1000");
}

TEST(CustomShapes, GrowInTheMiddleWhereTheyAreStretched)
{
    // Twice as wide as high: what is 10 from a side stays a tenth of the height from it.
    const ShownDrawing drawing = ShowCustom(
        R"( svg:viewBox="0 0 100 100" draw:path-stretchpoint-x="50" draw:path-stretchpoint-y="50")"
        R"( draw:text-areas="10 10 ?f0 ?f1" draw:enhanced-path="M 10 0 L ?f0 0 100 10 100 100 0 100 0 10 Z N")",
        R"(<draw:equation draw:name="f0" draw:formula="right-10"/>)"
        R"(<draw:equation draw:name="f1" draw:formula="bottom-10"/>)");

    EXPECT_THAT(PartsOnPage(drawing.Shape()),
                ElementsAre("M1200,2000 L4800,2000 L5000,2200 L5000,4000 L1000,4000 L1000,2200 Z"));
    EXPECT_EQ(TextOf(drawing.Shape().textArea), "1200,2200 3600x1600");
}

TEST(CustomShapes, ThatCannotBeEvaluatedHaveTheOutlineOfTheirBox)
{
    const ShownDrawing drawing =
        ShowCustom(R"( svg:viewBox="0 0 100 100" draw:enhanced-path="M 0 0 L ?missing 0")");

    EXPECT_THAT(PartsOnPage(drawing.Shape()), ElementsAre("M1000,2000 L5000,2000 L5000,4000 L1000,4000 Z"));
    EXPECT_FALSE(drawing.Shape().isExact);
}

} // namespace
