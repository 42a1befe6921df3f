#include "host/colour/CLR_COLORSPEC.h"

#include <gtest/gtest.h>

namespace
{

using Rgb = CLR_COLORSPEC::Rgb;

TEST(ColourSpec, IsBlackAtFirst)
{
    const CLR_COLORSPEC colour;

    EXPECT_EQ(colour.GetModel(), CLR_COLORSPEC::kRgb);
    EXPECT_EQ(colour.ToRgb(), (Rgb{0, 0, 0}));
    EXPECT_TRUE(colour.GetResourceName().empty());
}

TEST(ColourSpec, TellsItsModel)
{
    EXPECT_EQ(CLR_COLORSPEC::FromRgb({1, 2, 3}).GetModel(), 1);
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({1, 2, 3, 4}).GetModel(), 2);
    EXPECT_EQ(CLR_COLORSPEC::FromGrey(1).GetModel(), 3);
    EXPECT_EQ(CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3}).GetModel(), 28);
}

TEST(ColourSpec, LooksLikeItsRedGreenAndBlue)
{
    EXPECT_EQ(CLR_COLORSPEC::FromRgb({0x33, 0x66, 0xCC}).ToRgb(), (Rgb{0x33, 0x66, 0xCC}));
}

TEST(ColourSpec, LooksAsGreyAsItsLevel)
{
    EXPECT_EQ(CLR_COLORSPEC::FromGrey(0).ToRgb(), (Rgb{0, 0, 0}));
    EXPECT_EQ(CLR_COLORSPEC::FromGrey(128).ToRgb(), (Rgb{128, 128, 128}));
    EXPECT_EQ(CLR_COLORSPEC::FromGrey(255).ToRgb(), (Rgb{255, 255, 255}));
}

TEST(ColourSpec, LooksLikeWhatItsInksLetThrough)
{
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({0, 0, 0, 0}).ToRgb(), (Rgb{255, 255, 255}));
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({255, 0, 0, 0}).ToRgb(), (Rgb{0, 255, 255}));
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({0, 255, 255, 0}).ToRgb(), (Rgb{255, 0, 0}));
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({0, 0, 0, 255}).ToRgb(), (Rgb{0, 0, 0}));
    // (255 - 51) * (255 - 51) / 255 = 163.2
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({51, 0, 255, 51}).ToRgb(), (Rgb{163, 204, 0}));
}

TEST(ColourSpec, OfAResourceNamesItsEntryAndKeepsALook)
{
    const CLR_COLORSPEC colour = CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3});

    EXPECT_EQ(colour.GetResourceName(), L"Brand");
    EXPECT_EQ(colour.ToRgb(), (Rgb{1, 2, 3}));
}

TEST(ColourSpec, KeepsItsLookWhenItsReferenceIsBroken)
{
    CLR_COLORSPEC colour = CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3});

    EXPECT_TRUE(colour.BreakReference());

    EXPECT_EQ(colour, CLR_COLORSPEC::FromRgb({1, 2, 3}));
    EXPECT_TRUE(colour.GetResourceName().empty());
}

TEST(ColourSpec, WithoutAReferenceHasNoneToBreak)
{
    CLR_COLORSPEC colour = CLR_COLORSPEC::FromCmyk({1, 2, 3, 4});

    EXPECT_FALSE(colour.BreakReference());

    EXPECT_EQ(colour, CLR_COLORSPEC::FromCmyk({1, 2, 3, 4}));
}

TEST(ColourSpec, EqualsOneOfTheSameModelComponentsAndResource)
{
    EXPECT_EQ(CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3}),
              CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3}));
    EXPECT_NE(CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3}),
              CLR_COLORSPEC::FromResource(L"Other", {1, 2, 3}));
    EXPECT_NE(CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3}), CLR_COLORSPEC::FromRgb({1, 2, 3}));
    EXPECT_NE(CLR_COLORSPEC::FromRgb({1, 2, 3}), CLR_COLORSPEC::FromRgb({1, 2, 4}));
    EXPECT_NE(CLR_COLORSPEC::FromGrey(0), CLR_COLORSPEC::FromRgb({0, 0, 0}));
}

TEST(ColourSpec, IsOrderedOneWayOnly)
{
    const CLR_COLORSPEC darker = CLR_COLORSPEC::FromRgb({1, 2, 3});
    const CLR_COLORSPEC lighter = CLR_COLORSPEC::FromRgb({1, 2, 4});

    EXPECT_LT(darker, lighter);
    EXPECT_FALSE(lighter < darker);
    EXPECT_FALSE(darker < darker);
}

} // namespace
