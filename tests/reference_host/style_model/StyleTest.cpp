#include "host/style_model/Style.h"

#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <utility>

// One style by itself: what it holds, and what it tells of itself.
namespace
{

using OvxUtils::Any;
using Styles::PropertyKey;
using Styles::Style;

TEST(Style, HoldsNothingAtFirst)
{
    const Style style;

    EXPECT_TRUE(style.IsEmpty());
    EXPECT_EQ(style.GetOwnPropertyCount(), 0u);
    EXPECT_EQ(style.GetCategoryName(), PropertyKey::Empty);
    EXPECT_EQ(style.GetParent(), nullptr);
    EXPECT_EQ(style.GetOwner(), nullptr);
    EXPECT_FALSE(style.IsExternal());
    EXPECT_TRUE(style.GetProperty(Key(L"color")).IsEmpty());
}

TEST(Style, IsMadeOfACategoryWithAParent)
{
    Style parent;

    const Style style(&parent, Key(L"fill"));

    EXPECT_EQ(style.GetCategoryName(), Key(L"fill"));
    EXPECT_EQ(style.GetParent(), &parent);
}

TEST(Style, GivesBackWhatWasSet)
{
    Style style;

    style.SetProperty(Key(L"width"), Number(5));
    style.SetProperty(Key(L"name"), Any(OvxStringT(L"wide")));

    EXPECT_EQ(style.GetProperty(Key(L"width")), Number(5));
    EXPECT_EQ(style.GetProperty(Key(L"name")).Get<OvxStringT>(), L"wide");
    EXPECT_EQ(style.GetOwnPropertyCount(), 2u);
    EXPECT_FALSE(style.IsEmpty());
}

TEST(Style, HoldsOneValueForAKey)
{
    Style style;
    style.SetProperty(Key(L"width"), Number(5));

    style.SetProperty(Key(L"width"), Any(OvxStringT(L"thin")));

    EXPECT_EQ(style.GetOwnPropertyCount(), 1u);
    EXPECT_EQ(style.GetProperty(Key(L"width")), Any(OvxStringT(L"thin")));
}

TEST(Style, DropsAPropertyThatIsSetToNothing)
{
    Style style;
    style.SetProperty(Key(L"width"), Number(5));

    style.SetProperty(Key(L"width"), Any());

    EXPECT_TRUE(style.IsEmpty());
    EXPECT_TRUE(style.GetProperty(Key(L"width")).IsEmpty());
}

TEST(Style, HoldsNothingAfterNothingWasSetToNothing)
{
    Style style;

    style.SetProperty(Key(L"width"), Any());

    EXPECT_TRUE(style.IsEmpty());
}

TEST(Style, FindsEachOfManyProperties)
{
    Style style;
    const wchar_t* const names[] = {L"n7", L"n1", L"n9", L"n3", L"n5", L"n0", L"n8", L"n2", L"n6", L"n4"};

    for (int i = 0; i < 10; ++i)
        style.SetProperty(Key(names[i]), Number(i));

    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(style.GetProperty(Key(names[i])), Number(i));
    EXPECT_EQ(style.GetOwnPropertyCount(), 10u);
}

TEST(Style, TakesAValueOfItsOwnUnderAnotherKey)
{
    Style style;
    style.SetProperty(Key(L"a"), Any(OvxStringT(L"a value on the heap")));

    style.SetProperty(Key(L"b"), style.GetProperty(Key(L"a")));
    style.SetProperty(Key(L"a"), style.GetProperty(Key(L"a")));

    EXPECT_EQ(style.GetProperty(Key(L"a")), Any(OvxStringT(L"a value on the heap")));
    EXPECT_EQ(style.GetProperty(Key(L"b")), Any(OvxStringT(L"a value on the heap")));
}

TEST(Style, HasNoSubstyleUntilOneIsMade)
{
    Style style;

    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), true), nullptr);
    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), false), nullptr);
}

TEST(Style, OwnsTheSubstyleThatItMade)
{
    Style style;

    Style* const fill = style.GetSubstyleAndCreateIfMissing(Key(L"fill"), Key(L"area"));

    ASSERT_NE(fill, nullptr);
    EXPECT_EQ(fill->GetOwner(), &style);
    EXPECT_EQ(fill->GetCategoryName(), Key(L"area"));
    EXPECT_EQ(fill->GetParent(), nullptr);
    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), true), fill);
    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), false), fill);
}

TEST(Style, KeepsASubstyleThatIsThere)
{
    Style style;
    Style* const fill = style.GetSubstyleAndCreateIfMissing(Key(L"fill"), Key(L"area"));

    EXPECT_EQ(style.GetSubstyleAndCreateIfMissing(Key(L"fill"), Key(L"other")), fill);

    EXPECT_EQ(fill->GetCategoryName(), Key(L"area"));
}

TEST(Style, KeepsTheAddressesOfItsSubstylesWhileItGrows)
{
    Style style;
    Style* const fill = &Sub(style, L"fill");

    for (const wchar_t* name : {L"s1", L"s2", L"s3", L"s4", L"s5"})
        Sub(style, name);

    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), true), fill);
}

TEST(Style, IsNotEmptyWithAnEmptySubstyle)
{
    Style style;

    Sub(style, L"fill");

    EXPECT_FALSE(style.IsEmpty());
    EXPECT_EQ(style.GetOwnPropertyCount(), 0u);
}

TEST(Style, SetsAPropertyAtTheEndOfAPath)
{
    Style style;

    style.SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(45));

    Style* const gradient = Sub(style, L"fill").GetSubstyle(Key(L"gradient"), true);
    ASSERT_NE(gradient, nullptr);
    EXPECT_EQ(gradient->GetProperty(Key(L"angle")), Number(45));
    EXPECT_EQ(gradient->GetCategoryName(), Key(L"gradient"));
    EXPECT_EQ(style.GetPathProperty(Path({L"fill", L"gradient", L"angle"})), Number(45));
}

TEST(Style, SetsItsOwnPropertyByAPathOfOneKey)
{
    Style style;

    style.SetPathProperty(Path({L"width"}), Number(5));

    EXPECT_EQ(style.GetProperty(Key(L"width")), Number(5));
}

TEST(Style, TakesTheEmptyPathForNothing)
{
    Style style;

    style.SetPathProperty({}, Number(5));

    EXPECT_TRUE(style.IsEmpty());
    EXPECT_TRUE(style.GetPathProperty({}).IsEmpty());
}

TEST(Style, MakesNoSubstyleToRemoveAPropertyFrom)
{
    Style style;

    style.SetPathProperty(Path({L"fill", L"color"}), Any());

    EXPECT_TRUE(style.IsEmpty());
}

TEST(Style, RemovesAPropertyAtTheEndOfAPath)
{
    Style style;
    style.SetPathProperty(Path({L"fill", L"color"}), Number(1));

    style.SetPathProperty(Path({L"fill", L"color"}), Any());

    EXPECT_TRUE(Sub(style, L"fill").IsEmpty());
}

TEST(Style, TakesACopyForASubstyle)
{
    Style style;
    Style model(nullptr, Key(L"fill"));
    model.SetProperty(Key(L"color"), Number(1));

    style.SetSubstyle(Key(L"fill"), &model);
    model.SetProperty(Key(L"color"), Number(2));

    Style* const fill = style.GetSubstyle(Key(L"fill"), true);
    ASSERT_NE(fill, nullptr);
    EXPECT_EQ(fill->GetProperty(Key(L"color")), Number(1));
    EXPECT_EQ(fill->GetOwner(), &style);
    EXPECT_EQ(fill->GetCategoryName(), Key(L"fill"));
}

TEST(Style, ReplacesASubstyleWithoutMovingIt)
{
    Style style;
    Style& fill = Sub(style, L"fill");
    fill.SetProperty(Key(L"width"), Number(9));
    Style model(nullptr, Key(L"fill"));
    model.SetProperty(Key(L"color"), Number(1));

    style.SetSubstyle(Key(L"fill"), &model);

    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), true), &fill);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
    EXPECT_TRUE(fill.GetProperty(Key(L"width")).IsEmpty());
    EXPECT_EQ(fill.GetOwner(), &style);
}

TEST(Style, RemovesASubstyleThatIsReplacedByNone)
{
    Style style;
    Sub(style, L"fill");
    Sub(style, L"outline");

    style.SetSubstyle(Key(L"fill"), nullptr);
    style.SetSubstyle(Key(L"unknown"), nullptr);

    EXPECT_EQ(style.GetSubstyle(Key(L"fill"), true), nullptr);
    EXPECT_NE(style.GetSubstyle(Key(L"outline"), true), nullptr);
}

TEST(Style, HoldsNoSubstyleWithoutAName)
{
    Style style;
    const Style model;

    style.SetSubstyle(PropertyKey::Empty, &model);
    style.SetPathProperty({PropertyKey::Empty, Key(L"color")}, Number(1));

    EXPECT_EQ(style.GetSubstyleAndCreateIfMissing(PropertyKey::Empty, Key(L"fill")), nullptr);
    EXPECT_TRUE(style.IsEmpty());
}

TEST(Style, MayHoldACopyOfItsOwnOwnerOrItself)
{
    Style style(nullptr, Key(L"style"));
    Style& fill = Sub(style, L"fill");
    fill.SetProperty(Key(L"color"), Number(1));

    fill.SetSubstyle(Key(L"copy"), &style);

    EXPECT_EQ(style.GetPathProperty(Path({L"fill", L"copy", L"fill", L"color"})), Number(1));
}

TEST(Style, IsOfTheDocumentUntilItIsGivenAnExternalSheet)
{
    Style style;

    ReferenceHost::SetExternalSheet(style, L"Company", L"company.odg");

    EXPECT_TRUE(style.IsExternal());
    EXPECT_EQ(style.GetExternalStyleSheetName(), L"Company");
    EXPECT_EQ(style.GetExternalLink(), L"company.odg");
}

TEST(Style, IsExternalThroughItsOwner)
{
    Style style;
    Style& fill = Sub(style, L"fill");

    ReferenceHost::SetExternalSheet(style, L"Company", L"company.odg");

    EXPECT_TRUE(fill.IsExternal());
    EXPECT_EQ(fill.GetExternalStyleSheetName(), L"Company");
    EXPECT_EQ(fill.GetExternalLink(), L"company.odg");
}

TEST(Style, IsOfTheDocumentAgainWithoutASheetName)
{
    Style style;
    ReferenceHost::SetExternalSheet(style, L"Company", L"company.odg");

    ReferenceHost::SetExternalSheet(style, L"", L"company.odg");

    EXPECT_FALSE(style.IsExternal());
    EXPECT_TRUE(style.GetExternalStyleSheetName().empty());
    EXPECT_TRUE(style.GetExternalLink().empty());
}

} // namespace
