#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

// Parents that are taken and parents that are refused, and who depends on whom.
namespace
{

using Styles::Style;

std::vector<Style*> Sorted(std::vector<Style*> styles)
{
    std::sort(styles.begin(), styles.end(), std::less<>());
    return styles;
}

TEST(StyleInheritance, FollowsTheParentThatIsSet)
{
    Style first;
    Style second;
    Style style;

    style.SetParent(&first);
    EXPECT_EQ(style.GetParent(), &first);

    style.SetParent(&second);
    EXPECT_EQ(style.GetParent(), &second);

    style.SetParent(nullptr);
    EXPECT_EQ(style.GetParent(), nullptr);
}

TEST(StyleInheritance, RefusesAStyleAsItsOwnParent)
{
    Style style;

    style.SetParent(&style);

    EXPECT_EQ(style.GetParent(), nullptr);
}

TEST(StyleInheritance, RefusesAParentThatInheritsFromTheStyle)
{
    Style before;
    Style top(&before, Styles::StyleCategoryName);
    Style middle(&top, Styles::StyleCategoryName);
    Style bottom(&middle, Styles::StyleCategoryName);

    top.SetParent(&bottom);

    EXPECT_EQ(top.GetParent(), &before);
}

TEST(StyleInheritance, RefusesWhatLiesWithinTheStyle)
{
    Style style;
    Style& gradient = Sub(Sub(style, L"fill"), L"gradient");

    style.SetParent(&gradient);

    EXPECT_EQ(style.GetParent(), nullptr);
}

TEST(StyleInheritance, RefusesWhatInheritsFromSomethingWithinTheStyle)
{
    Style style;
    Style child(&Sub(style, L"fill"), Styles::FillStyleCategoryName);

    style.SetParent(&child);

    EXPECT_EQ(style.GetParent(), nullptr);
}

TEST(StyleInheritance, RefusesAParentWhoseOwnerInheritsFromTheStyle)
{
    const auto named = MakeWhole();
    const auto object = MakeWhole(named.get());

    Sub(*named, L"fill").SetParent(&Sub(*object, L"fill"));
    named->SetParent(&Sub(*object, L"outline"));

    EXPECT_EQ(Sub(*named, L"fill").GetParent(), nullptr);
    EXPECT_EQ(named->GetParent(), nullptr);
}

TEST(StyleInheritance, RefusesAParentWhoseSubstyleInheritsFromTheStylesOwn)
{
    const auto first = MakeWhole();
    const auto second = MakeWhole();
    Sub(*first, L"fill").SetParent(&Sub(*second, L"fill"));

    second->SetParent(first.get());

    EXPECT_EQ(second->GetParent(), nullptr);
}

TEST(StyleInheritance, RefusesARingOfSeveralSubstyles)
{
    const auto first = MakeWhole();
    const auto second = MakeWhole();
    const auto third = MakeWhole();
    Sub(*first, L"fill").SetParent(&Sub(*second, L"fill"));
    second->SetParent(third.get());

    Sub(*third, L"fill").SetParent(&Sub(*first, L"fill"));

    EXPECT_EQ(Sub(*third, L"fill").GetParent(), nullptr);
}

TEST(StyleInheritance, AllowsASubstyleToInheritFromAnotherOfTheSameOwner)
{
    const auto style = MakeWhole();

    Sub(*style, L"outline").SetParent(&Sub(*style, L"fill"));

    EXPECT_EQ(Sub(*style, L"outline").GetParent(), &Sub(*style, L"fill"));
}

TEST(StyleInheritance, AllowsTwoStylesOneParent)
{
    const auto base = MakeWhole();
    const auto first = MakeWhole(base.get());
    const auto second = MakeWhole(base.get());

    first->SetParent(second.get());

    EXPECT_EQ(first->GetParent(), second.get());
}

TEST(StyleInheritance, AllowsAParentAgainOnceTheRingIsOpen)
{
    Style top;
    Style bottom(&top, Styles::StyleCategoryName);

    bottom.SetParent(nullptr);
    top.SetParent(&bottom);

    EXPECT_EQ(top.GetParent(), &bottom);
}

TEST(StyleInheritance, DependsOnParentsAtAnyDistance)
{
    Style top;
    Style middle(&top, Styles::StyleCategoryName);
    const Style bottom(&middle, Styles::StyleCategoryName);
    Style other;

    EXPECT_TRUE(bottom.HasParentalDependency(Sorted({&middle})));
    EXPECT_TRUE(bottom.HasParentalDependency(Sorted({&top, &other})));
    EXPECT_FALSE(bottom.HasParentalDependency(Sorted({&other})));
}

TEST(StyleInheritance, DependsNeitherOnItselfNorOnItsChildren)
{
    Style top;
    Style bottom(&top, Styles::StyleCategoryName);

    EXPECT_FALSE(top.HasParentalDependency(Sorted({&top, &bottom})));
    EXPECT_FALSE(bottom.HasParentalDependency(Sorted({&bottom})));
}

TEST(StyleInheritance, DependsOnNothingInAnEmptyList)
{
    Style top;
    const Style bottom(&top, Styles::StyleCategoryName);

    EXPECT_FALSE(bottom.HasParentalDependency({}));
}

TEST(StyleInheritance, OfASubstyleDependsOnTheParentsOfItsOwner)
{
    const auto base = MakeWhole();
    const auto named = MakeWhole(base.get());
    const auto object = MakeWhole(named.get());
    const Style& fill = Sub(*object, L"fill");

    EXPECT_TRUE(fill.HasParentalDependency(Sorted({named.get()})));
    EXPECT_TRUE(fill.HasParentalDependency(Sorted({base.get()})));
    EXPECT_TRUE(fill.HasParentalDependency(Sorted({&Sub(*base, L"fill")})));
    EXPECT_FALSE(fill.HasParentalDependency(Sorted({&Sub(*base, L"outline"), object.get()})));
}

TEST(StyleInheritance, FindsADependencyAmongManyStyles)
{
    const auto top = MakeWhole();
    const auto bottom = MakeWhole(top.get());
    std::vector<std::unique_ptr<Style>> others;
    std::vector<Style*> list{top.get()};
    for (int i = 0; i < 100; ++i)
        list.push_back(others.emplace_back(std::make_unique<Style>()).get());

    EXPECT_TRUE(bottom->HasParentalDependency(Sorted(list)));
}

} // namespace
