#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/colour/CLR_COLORSPEC.h"

#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(ColoursTest);

// Colours, and what becomes of one that refers to a palette entry.
namespace HostTests
{

using Rgb = CLR_COLORSPEC::Rgb;

namespace
{

const Rgb kSea{0x33, 0x66, 0xcc};

} // namespace

TEST(Colour, TellsItsModel)
{
    EXPECT_EQ(CLR_COLORSPEC::FromRgb(kSea).GetModel(), 1);
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({1, 2, 3, 4}).GetModel(), 2);
    EXPECT_EQ(CLR_COLORSPEC::FromGrey(5).GetModel(), 3);
    EXPECT_EQ(CLR_COLORSPEC::FromResource(L"Sea", kSea).GetModel(), 28);
}

TEST(Colour, LooksLikeWhatItWasMadeFrom)
{
    EXPECT_EQ(CLR_COLORSPEC().ToRgb(), (Rgb{0, 0, 0}));
    EXPECT_EQ(CLR_COLORSPEC::FromRgb(kSea).ToRgb(), kSea);
    EXPECT_EQ(CLR_COLORSPEC::FromGrey(7).ToRgb(), (Rgb{7, 7, 7}));
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({0, 0, 0, 0}).ToRgb(), (Rgb{255, 255, 255}));
    EXPECT_EQ(CLR_COLORSPEC::FromCmyk({0, 0, 0, 255}).ToRgb(), (Rgb{0, 0, 0}));
    EXPECT_EQ(CLR_COLORSPEC::FromResource(L"Sea", kSea).ToRgb(), kSea);
}

TEST(Colour, NamesThePaletteEntryThatItRefersTo)
{
    EXPECT_EQ(CLR_COLORSPEC::FromResource(L"Sea", kSea).GetResourceName(), L"Sea");
    EXPECT_EQ(CLR_COLORSPEC::FromRgb(kSea).GetResourceName(), L"");
}

TEST(Colour, KeepsItsLookWhenItsReferenceIsBroken)
{
    CLR_COLORSPEC colour = CLR_COLORSPEC::FromResource(L"Sea", kSea);

    EXPECT_TRUE(colour.BreakReference());

    EXPECT_EQ(colour, CLR_COLORSPEC::FromRgb(kSea));
    EXPECT_EQ(colour.GetResourceName(), L"");
}

TEST(Colour, WithoutAReferenceStaysAsItIs)
{
    CLR_COLORSPEC colour = CLR_COLORSPEC::FromCmyk({1, 2, 3, 4});

    EXPECT_FALSE(colour.BreakReference());

    EXPECT_EQ(colour, CLR_COLORSPEC::FromCmyk({1, 2, 3, 4}));
}

TEST(Colour, DiffersFromOneThatOnlyLooksTheSame)
{
    const CLR_COLORSPEC resource = CLR_COLORSPEC::FromResource(L"Sea", kSea);

    EXPECT_FALSE(resource == CLR_COLORSPEC::FromRgb(kSea));
    EXPECT_FALSE(resource == CLR_COLORSPEC::FromResource(L"Lake", kSea));
    EXPECT_EQ(resource, CLR_COLORSPEC::FromResource(L"Sea", kSea));
    EXPECT_NE(resource < CLR_COLORSPEC::FromRgb(kSea), CLR_COLORSPEC::FromRgb(kSea) < resource);
}

} // namespace HostTests
