#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

// SetProperties: which values go over, and which go away.
namespace
{

using Styles::PropertyKey;
using Styles::Style;

TEST(StyleSetProperties, CopiesTheListedValuesOnly)
{
    Style source;
    source.SetProperty(Key(L"color"), Number(1));
    source.SetProperty(Key(L"width"), Number(2));
    Style style;

    style.SetProperties({Path({L"color"})}, &source);

    EXPECT_EQ(style.GetProperty(Key(L"color")), Number(1));
    EXPECT_TRUE(style.GetProperty(Key(L"width")).IsEmpty());
}

TEST(StyleSetProperties, CopiesAlongPathsAndMakesTheSubstyles)
{
    Style source;
    source.GetSubstyleAndCreateIfMissing(Key(L"fill"), Key(L"area"))->SetProperty(Key(L"color"), Number(1));
    Style style;

    style.SetProperties({Path({L"fill", L"color"})}, &source);

    EXPECT_EQ(style.GetPathProperty(Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(Sub(style, L"fill").GetCategoryName(), Key(L"area"));
}

TEST(StyleSetProperties, RemovesWhatTheSourceDoesNotSet)
{
    const Style source;
    Style style;
    style.SetProperty(Key(L"color"), Number(1));
    style.SetPathProperty(Path({L"fill", L"color"}), Number(2));

    style.SetProperties({Path({L"color"}), Path({L"fill", L"color"})}, &source);

    EXPECT_EQ(style.GetOwnPropertyCount(), 0u);
    EXPECT_EQ(Sub(style, L"fill").GetOwnPropertyCount(), 0u);
}

TEST(StyleSetProperties, RemovesWhatTheSourceOnlyInherits)
{
    Style parent;
    parent.SetProperty(Key(L"color"), Number(3));
    const Style source(&parent, Styles::FillStyleCategoryName);
    Style style;
    style.SetProperty(Key(L"color"), Number(1));

    style.SetProperties({Path({L"color"})}, &source);

    EXPECT_TRUE(style.IsEmpty());
}

TEST(StyleSetProperties, LeavesValuesOfOtherPathsAlone)
{
    Style source;
    source.SetProperty(Key(L"color"), Number(1));
    Style style;
    style.SetProperty(Key(L"width"), Number(5));

    style.SetProperties({Path({L"color"})}, &source);

    EXPECT_EQ(style.GetProperty(Key(L"width")), Number(5));
}

TEST(StyleSetProperties, MakesNoSubstyleOnlyToRemoveSomething)
{
    const auto source = MakeWhole();
    Style style;

    style.SetProperties({Path({L"fill", L"color"}), Path({L"outline"}), Path({L"unknown"})}, source.get());

    EXPECT_TRUE(style.IsEmpty());
}

TEST(StyleSetProperties, ChangesNothingWithoutASource)
{
    Style style;
    style.SetProperty(Key(L"color"), Number(1));

    style.SetProperties({Path({L"color"})}, nullptr);
    style.SetProperties({Path({L"color"})}, &style);

    EXPECT_EQ(style.GetProperty(Key(L"color")), Number(1));
}

TEST(StyleSetProperties, PassesOverEmptyPaths)
{
    Style source;
    source.SetProperty(Key(L"color"), Number(1));
    Style style;
    style.SetProperty(Key(L"width"), Number(5));

    style.SetProperties({{}}, &source);

    EXPECT_EQ(Styles::GetOverriddenProperties(style), std::set<PropertyKey>{Key(L"width")});
}

TEST(StyleSetProperties, CopiesAllOwnValuesOfASubstyle)
{
    Style source;
    source.SetPathProperty(Path({L"fill", L"color"}), Number(1));
    source.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(2));
    Style style;
    style.SetPathProperty(Path({L"fill", L"hatch"}), Number(7));
    style.SetPathProperty(Path({L"fill", L"shadow", L"depth"}), Number(8));

    style.SetProperties({Path({L"fill"})}, &source);

    Style& fill = Sub(style, L"fill");
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
    EXPECT_EQ(fill.GetPathProperty(Path({L"gradient", L"angle"})), Number(2));
    EXPECT_TRUE(fill.GetProperty(Key(L"hatch")).IsEmpty());
    EXPECT_TRUE(Sub(fill, L"shadow").IsEmpty());
}

TEST(StyleSetProperties, KeepsWhereASubstyleInheritsFrom)
{
    Style parentOfFill;
    Style otherParent;
    Style source;
    Style& sourceFill = Sub(source, L"fill");
    sourceFill.SetParent(&otherParent);
    sourceFill.SetProperty(Key(L"color"), Number(1));
    Style style;
    Style& fill = Sub(style, L"fill");
    fill.SetParent(&parentOfFill);

    style.SetProperties({Path({L"fill"})}, &source);

    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), true), &fill);
    EXPECT_EQ(fill.GetParent(), &parentOfFill);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
}

TEST(StyleSetProperties, EmptiesASubstyleThatTheSourceLacks)
{
    const Style source;
    Style style;
    style.SetPathProperty(Path({L"fill", L"color"}), Number(1));
    style.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(2));

    style.SetProperties({Path({L"fill"})}, &source);

    EXPECT_NE(style.GetSubstyle(Key(L"fill"), true), nullptr);
    EXPECT_TRUE(Styles::GetOverriddenPropertyPaths(style).empty());
}

TEST(StyleSetProperties, ReadsWhatASourceWithinTheStyleHeldBefore)
{
    Style style;
    style.SetPathProperty(Path({L"fill", L"color"}), Number(1));
    style.SetPathProperty(Path({L"fill", L"fill", L"color"}), Number(2));

    style.SetProperties({Path({L"fill", L"color"}), Path({L"color"})}, style.GetSubstyle(Key(L"fill"), true));

    // The fill within the fill gives its color to the fill, and the fill gives the color it had to the style.
    EXPECT_EQ(style.GetPathProperty(Path({L"fill", L"color"})), Number(2));
    EXPECT_EQ(style.GetProperty(Key(L"color")), Number(1));
}

} // namespace
