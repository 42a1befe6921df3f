#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>

// What a style sets itself, and the free functions around styles.
namespace
{

using Styles::PropertyKey;
using Styles::PropertyPaths;
using Styles::Style;

TEST(StyleOverride, IsAValueOfTheStyleItself)
{
    Style parent;
    parent.SetProperty(Key(L"width"), Number(2));
    Style style(&parent, Styles::FillStyleCategoryName);
    style.SetProperty(Key(L"color"), Number(1));

    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"color"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"width"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"unknown"})));
}

TEST(StyleOverride, IsFoundThroughSubstyles)
{
    Style style;
    style.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(1));

    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"fill", L"gradient", L"angle"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"fill", L"angle"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"outline", L"gradient", L"angle"})));
}

TEST(StyleOverride, OfASubstyleAsAWholeIsAnyValueInIt)
{
    Style style;
    Sub(style, L"outline");
    style.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(1));

    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"fill"})));
    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"fill", L"*"})));
    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"*"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"outline"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"outline", L"*"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"unknown", L"*"})));
}

TEST(StyleOverride, IsNothingForTheEmptyPath)
{
    Style style;
    style.SetProperty(Key(L"color"), Number(1));

    EXPECT_FALSE(style.DoesOverridePathProperty({}));
}

TEST(OverriddenProperties, AreTheKeysOfOwnPropertiesAndNotOfSubstyles)
{
    Style parent;
    parent.SetProperty(Key(L"inherited"), Number(1));
    Style style(&parent, Styles::StyleCategoryName);
    style.SetProperty(Key(L"color"), Number(1));
    style.SetProperty(Key(L"width"), Number(2));
    style.SetPathProperty(Path({L"fill", L"angle"}), Number(3));

    EXPECT_EQ(Styles::GetOverriddenProperties(style), (std::set<PropertyKey>{Key(L"color"), Key(L"width")}));
}

TEST(OverriddenProperties, AreNoneInAStyleOfEmptySubstyles)
{
    EXPECT_TRUE(Styles::GetOverriddenProperties(*MakeWhole()).empty());
    EXPECT_TRUE(Styles::GetOverriddenPropertyPaths(*MakeWhole()).empty());
}

TEST(OverriddenPropertyPaths, LeadThroughSubstyles)
{
    Style style;
    style.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(1));
    style.SetPathProperty(Path({L"fill", L"color"}), Number(2));
    style.SetProperty(Key(L"hidden"), Number(3));

    EXPECT_THAT(Styles::GetOverriddenPropertyPaths(style),
                testing::ElementsAre(Path({L"hidden"}), Path({L"fill", L"color"}),
                                     Path({L"fill", L"gradient", L"angle"})));
}

TEST(StyleCategoryProperties, AreThoseThatWereRegisteredForTheCategory)
{
    ReferenceHost::CategoryRegistry::GetInstance().RegisterProperties(Key(L"queried"),
                                                                      {Key(L"one"), Key(L"two")});
    Style style(nullptr, Key(L"queried"));
    style.SetProperty(Key(L"three"), Number(3));

    EXPECT_EQ(Styles::GetStyleCategoryProperties(style), (std::set<PropertyKey>{Key(L"one"), Key(L"two")}));
}

TEST(StyleCategoryProperties, AreNoneForACategoryThatNobodyKnows)
{
    EXPECT_TRUE(Styles::GetStyleCategoryProperties(Style(nullptr, Key(L"nobody's"))).empty());
}

TEST(StyleOrSubstyle, IsTheStyleItselfWhenItIsOfTheCategory)
{
    Style fill(nullptr, Styles::FillStyleCategoryName);

    EXPECT_EQ(Styles::GetStyleOrSubstyle(&fill, Styles::FillStyleCategoryName, true), &fill);
    EXPECT_TRUE(fill.IsEmpty());
}

TEST(StyleOrSubstyle, IsTheSubstyleOfTheCategoryOtherwise)
{
    const auto whole = MakeWhole();

    EXPECT_EQ(Styles::GetStyleOrSubstyle(whole.get(), Styles::FillStyleCategoryName, false),
              &Sub(*whole, L"fill"));
}

TEST(StyleOrSubstyle, IsMadeOnlyWhenTold)
{
    Style whole(nullptr, Styles::StyleCategoryName);

    EXPECT_EQ(Styles::GetStyleOrSubstyle(&whole, Styles::FillStyleCategoryName, false), nullptr);
    EXPECT_TRUE(whole.IsEmpty());

    Style* const made = Styles::GetStyleOrSubstyle(&whole, Styles::FillStyleCategoryName, true);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetCategoryName(), Styles::FillStyleCategoryName);
    EXPECT_EQ(made->GetOwner(), &whole);
}

TEST(StyleOrSubstyle, IsNothingWithoutAStyle)
{
    EXPECT_EQ(Styles::GetStyleOrSubstyle(nullptr, Styles::FillStyleCategoryName, true), nullptr);
}

TEST(SubstyleParent, IsTheOwnerAndNotTheParent)
{
    Style parent;
    Style whole(&parent, Styles::StyleCategoryName);

    EXPECT_EQ(Styles::GetSubstyleParent(Sub(whole, L"fill")), &whole);
    EXPECT_EQ(Styles::GetSubstyleParent(whole), nullptr);
}

TEST(EmptySubstyles, AreCleared)
{
    const auto whole = MakeWhole();

    Styles::ClearEmptySubstyles(*whole);

    EXPECT_TRUE(whole->IsEmpty());
}

TEST(EmptySubstyles, AreClearedDeepestFirst)
{
    Style style;
    Sub(Sub(Sub(style, L"fill"), L"gradient"), L"stop");

    Styles::ClearEmptySubstyles(style);

    EXPECT_TRUE(style.IsEmpty());
}

TEST(EmptySubstyles, AreClearedBesideSubstylesWithValues)
{
    const auto whole = MakeWhole();
    whole->SetPathProperty(Path({L"fill", L"color"}), Number(1));
    Sub(Sub(*whole, L"fill"), L"gradient");

    Styles::ClearEmptySubstyles(*whole);

    EXPECT_EQ(whole->GetSubstyle(Key(L"outline"), true), nullptr);
    ASSERT_NE(whole->GetSubstyle(Key(L"fill"), true), nullptr);
    EXPECT_EQ(Sub(*whole, L"fill").GetSubstyle(Key(L"gradient"), true), nullptr);
    EXPECT_EQ(whole->GetPathProperty(Path({L"fill", L"color"})), Number(1));
}

} // namespace
