#include "tests/reference_host/document/picture/ShownDrawing.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using ReferenceHost::ShapeDetails;

/// What a shape shows whose automatic style "gr1" inherits from the named style "base".
ShapeDetails DetailsOf(const std::string& defaults, const std::string& named, const std::string& automatic)
{
    const auto properties = [](const std::string& attributes)
    { return "<style:graphic-properties " + attributes + "/>"; };
    const FlatDrawing drawing =
        FlatDrawing()
            .Defaults(properties(defaults))
            .Named(R"(style:name="base")", properties(named))
            .Automatic("graphic", R"(style:name="gr1" style:parent-style-name="base")", properties(automatic))
            .Page(R"(<draw:rect draw:style-name="gr1"/>)");
    return ShownDrawing(drawing.Open()).Shape().details;
}

TEST(ShapeDetails, AreFoundAlongTheStyles)
{
    const ShapeDetails details =
        DetailsOf(R"(fo:padding-left="1mm" fo:padding-top="2mm")",
                  R"(fo:padding-top="3mm" fo:padding-right="4mm")", R"(fo:padding-right="5mm")");

    EXPECT_DOUBLE_EQ(details.paddingLeft, 100);
    EXPECT_DOUBLE_EQ(details.paddingTop, 300);
    EXPECT_DOUBLE_EQ(details.paddingRight, 500);
    EXPECT_DOUBLE_EQ(details.paddingBottom, 0);
}

TEST(ShapeDetails, TellWhereTextStands)
{
    const ShapeDetails details =
        DetailsOf("", R"(draw:textarea-vertical-align="bottom" draw:textarea-horizontal-align="right")",
                  R"(draw:textarea-vertical-align="middle" fo:wrap-option="no-wrap")");

    EXPECT_EQ(details.vertical, ShapeDetails::VerticalAlign::Middle);
    EXPECT_EQ(details.horizontal, ShapeDetails::HorizontalAlign::Right);
    EXPECT_FALSE(details.isWrapped);
}

TEST(ShapeDetails, DoNotWrapWhatGrowsWithItsText)
{
    EXPECT_FALSE(DetailsOf("", "", R"(draw:auto-grow-width="true")").isWrapped);
    EXPECT_TRUE(DetailsOf("", "", R"(draw:auto-grow-width="true" fo:wrap-option="wrap")").isWrapped);
}

TEST(ShapeDetails, TellHowArrowsAndBitmapsAreFitted)
{
    const ShapeDetails details =
        DetailsOf("", R"(draw:marker-start-width="3mm" style:repeat="stretch")",
                  R"(draw:marker-end-width="2mm" draw:marker-end-center="true" draw:fill-image-width="1cm")");

    EXPECT_DOUBLE_EQ(details.startArrowWidth, 300);
    EXPECT_DOUBLE_EQ(details.endArrowWidth, 200);
    EXPECT_FALSE(details.isStartArrowCentred);
    EXPECT_TRUE(details.isEndArrowCentred);
    EXPECT_EQ(details.bitmapFit, ShapeDetails::BitmapFit::Stretch);
    EXPECT_DOUBLE_EQ(details.bitmapSize.x, 1000);
}

TEST(ShapeDetails, HaveAShadowWhereItIsVisible)
{
    const std::string shadow = R"(draw:shadow-offset-x="3mm" draw:shadow-offset-y="-1mm")"
                               R"( draw:shadow-color="#102030" draw:shadow-opacity="70%")";

    EXPECT_FALSE(DetailsOf(shadow, "", R"(draw:shadow="hidden")").shadow);
    EXPECT_EQ(DetailsOf(shadow, "", R"(draw:shadow="visible")").shadow,
              (ShapeDetails::Shadow{{300, -100}, {0x10, 0x20, 0x30}, 30}));
}

TEST(ShapeDetails, TellHowFillsAreFitted)
{
    const ShapeDetails details =
        DetailsOf("", R"(draw:fill-image-ref-point="bottom-left" draw:opacity-name="Veil_20_1")",
                  R"(draw:gradient-step-count="5")");

    EXPECT_EQ(details.bitmapAnchor, (ReferenceHost::Point{0, 1}));
    EXPECT_EQ(details.opacity, OvxStringT(L"Veil_20_1"));
    EXPECT_EQ(details.gradientSteps, 5);
}

} // namespace
