#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <memory>

// Copies and assignments.
namespace
{

using Styles::Style;

TEST(StyleCopy, TakesPropertiesCategoryAndParent)
{
    Style parent;
    Style original(&parent, Styles::FillStyleCategoryName);
    original.SetProperty(Key(L"color"), Number(1));

    const Style copy(original);
    original.SetProperty(Key(L"color"), Number(2));

    EXPECT_EQ(copy.GetProperty(Key(L"color")), Number(1));
    EXPECT_EQ(copy.GetCategoryName(), Styles::FillStyleCategoryName);
    EXPECT_EQ(copy.GetParent(), &parent);
}

TEST(StyleCopy, OwnsCopiesOfTheSubstyles)
{
    Style original;
    original.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(45));

    const Style copy(original);
    original.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(90));

    Style* const fill = copy.GetSubstyle(Key(L"fill"), true);
    ASSERT_NE(fill, nullptr);
    EXPECT_EQ(fill->GetOwner(), &copy);
    EXPECT_NE(fill, original.GetSubstyle(Key(L"fill"), true));
    EXPECT_EQ(copy.GetPathProperty(Path({L"fill", L"gradient", L"angle"})), Number(45));
}

TEST(StyleCopy, OfASubstyleHasNoOwner)
{
    const auto named = MakeWhole();
    named->SetPathProperty(Path({L"fill", L"color"}), Number(2));
    const auto object = MakeWhole(named.get());

    const Style copy(Sub(*object, L"fill"));

    EXPECT_EQ(copy.GetOwner(), nullptr);
    EXPECT_TRUE(copy.GetProperty(Key(L"color")).IsEmpty());
}

TEST(StyleCopy, KeepsTheParentsOfSubstyles)
{
    Style parentOfFill;
    Style original;
    Sub(original, L"fill").SetParent(&parentOfFill);

    Style copy(original);

    EXPECT_EQ(Sub(copy, L"fill").GetParent(), &parentOfFill);
}

TEST(StyleCopy, FallsBackToTheSameDefaults)
{
    Style defaults;
    defaults.SetProperty(Key(L"hidden"), Number(9));
    Style original;
    ReferenceHost::SetDefaultStyle(original, &defaults);

    const Style copy(original);

    EXPECT_EQ(copy.GetProperty(Key(L"hidden")), Number(9));
}

TEST(StyleCopy, BelongsToNoSheet)
{
    Style original;
    ReferenceHost::SetExternalSheet(original, L"Company", L"company.odg");

    const Style copy(original);

    EXPECT_FALSE(copy.IsExternal());
}

TEST(StyleAssignment, ReplacesPropertiesSubstylesCategoryAndParent)
{
    Style oldParent;
    Style newParent;
    Style style(&oldParent, Styles::OutlineStyleCategoryName);
    style.SetProperty(Key(L"width"), Number(5));
    Sub(style, L"old");
    Style other(&newParent, Styles::FillStyleCategoryName);
    other.SetProperty(Key(L"color"), Number(1));
    other.SetPathProperty(Path({L"new", L"angle"}), Number(2));

    style = other;

    EXPECT_EQ(style.GetCategoryName(), Styles::FillStyleCategoryName);
    EXPECT_EQ(style.GetParent(), &newParent);
    EXPECT_EQ(Styles::GetOverriddenProperties(style), std::set<Styles::PropertyKey>{Key(L"color")});
    EXPECT_EQ(style.GetSubstyle(Key(L"old"), true), nullptr);
    EXPECT_EQ(Sub(style, L"new").GetOwner(), &style);
    EXPECT_EQ(style.GetPathProperty(Path({L"new", L"angle"})), Number(2));
}

TEST(StyleAssignment, KeepsTheOwnOwnerAndSheet)
{
    Style owner;
    ReferenceHost::SetExternalSheet(owner, L"Company", L"company.odg");
    Style& fill = Sub(owner, L"fill");
    const Style other;

    fill = other;

    EXPECT_EQ(fill.GetOwner(), &owner);
    EXPECT_EQ(fill.GetExternalStyleSheetName(), L"Company");
}

TEST(StyleAssignment, OfAStyleToItselfChangesNothing)
{
    Style style;
    style.SetPathProperty(Path({L"fill", L"color"}), Number(1));
    const Style& same = style;

    style = same;

    EXPECT_EQ(style.GetPathProperty(Path({L"fill", L"color"})), Number(1));
}

TEST(StyleAssignment, MayTakeWhatLiesWithinTheStyle)
{
    Style style;
    style.SetPathProperty(Path({L"fill", L"color"}), Number(1));

    style = *style.GetSubstyle(Key(L"fill"), true);

    EXPECT_EQ(style.GetProperty(Key(L"color")), Number(1));
    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), true), nullptr);
}

TEST(StyleAssignment, KeepsTheParentWhereTheOthersWouldCloseARing)
{
    Style before;
    Style style(&before, Styles::StyleCategoryName);
    Style child(&style, Styles::FillStyleCategoryName);
    child.SetProperty(Key(L"color"), Number(1));

    style = child;

    EXPECT_EQ(style.GetParent(), &before);
    EXPECT_EQ(style.GetProperty(Key(L"color")), Number(1));
}

TEST(StyleAssignment, KeepsItsDefaultsWhenItHasAny)
{
    Style mine;
    Style others;
    Style style;
    Style bare;
    Style other;
    ReferenceHost::SetDefaultStyle(style, &mine);
    ReferenceHost::SetDefaultStyle(other, &others);

    style = other;
    bare = other;

    EXPECT_EQ(ReferenceHost::GetDefaultStyle(style), &mine);
    EXPECT_EQ(ReferenceHost::GetDefaultStyle(bare), &others);
}

} // namespace
