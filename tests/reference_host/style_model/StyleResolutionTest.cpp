#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <memory>

// Where an effective value comes from.
namespace
{

using Styles::Style;

/// A drawing in small: a base style, a style that inherits from it, an object with that style, and a default
/// style.
class StyleResolution : public testing::Test
{
protected:
    StyleResolution()
    {
        for (Style* style : {base.get(), named.get(), object.get()})
            ReferenceHost::SetDefaultStyle(*style, defaults.get());
    }

    std::unique_ptr<Style> defaults = MakeWhole();
    std::unique_ptr<Style> base = MakeWhole();
    std::unique_ptr<Style> named = MakeWhole(base.get());
    std::unique_ptr<Style> object = MakeWhole(named.get());

    Style& fill = Sub(*object, L"fill");
};

TEST_F(StyleResolution, PrefersAnOwnValue)
{
    object->SetProperty(Key(L"hidden"), Number(1));
    named->SetProperty(Key(L"hidden"), Number(2));

    EXPECT_EQ(object->GetProperty(Key(L"hidden")), Number(1));
}

TEST_F(StyleResolution, GoesOnToTheNearestParentThatHasAValue)
{
    base->SetProperty(Key(L"hidden"), Number(3));
    EXPECT_EQ(object->GetProperty(Key(L"hidden")), Number(3));

    named->SetProperty(Key(L"hidden"), Number(2));

    EXPECT_EQ(object->GetProperty(Key(L"hidden")), Number(2));
}

TEST_F(StyleResolution, OfASubstyleGoesOnToTheOwnersParents)
{
    Sub(*base, L"fill").SetProperty(Key(L"color"), Number(3));
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(3));

    Sub(*named, L"fill").SetProperty(Key(L"color"), Number(2));
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(2));

    fill.SetProperty(Key(L"color"), Number(1));
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
}

TEST_F(StyleResolution, OfASubstyleNeverLooksIntoOtherSubstyles)
{
    Sub(*named, L"outline").SetProperty(Key(L"color"), Number(2));
    named->SetProperty(Key(L"color"), Number(3));

    EXPECT_TRUE(fill.GetProperty(Key(L"color")).IsEmpty());
}

TEST_F(StyleResolution, OfASubstylePassesOverParentsOfItsOwnerWithoutThatSubstyle)
{
    named->SetSubstyle(Key(L"fill"), nullptr);
    Sub(*base, L"fill").SetProperty(Key(L"color"), Number(3));

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(3));
}

TEST_F(StyleResolution, OfASubstylePrefersItsOwnParents)
{
    Style parentOfFill(nullptr, Styles::FillStyleCategoryName);
    parentOfFill.SetProperty(Key(L"color"), Number(4));
    Sub(*named, L"fill").SetProperty(Key(L"color"), Number(2));

    fill.SetParent(&parentOfFill);

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(4));
}

TEST_F(StyleResolution, OfASubstyleTakesInTheParentsOfTheSubstylesItInheritsFrom)
{
    Style parentOfFill(nullptr, Styles::FillStyleCategoryName);
    parentOfFill.SetProperty(Key(L"color"), Number(4));
    Sub(*named, L"fill").SetParent(&parentOfFill);
    Sub(*base, L"fill").SetProperty(Key(L"color"), Number(3));

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(4));
}

TEST_F(StyleResolution, OfASubstyleWithinASubstyleGoesOutwardsThroughEachOwner)
{
    Style& gradient = Sub(fill, L"gradient");
    base->SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(30));
    EXPECT_EQ(gradient.GetProperty(Key(L"angle")), Number(30));

    Style parentOfFill(nullptr, Styles::FillStyleCategoryName);
    parentOfFill.SetPathProperty(Path({L"gradient", L"angle"}), Number(60));
    fill.SetParent(&parentOfFill);

    EXPECT_EQ(gradient.GetProperty(Key(L"angle")), Number(60));
}

TEST_F(StyleResolution, FallsBackToTheDefaultsAfterAllParents)
{
    Sub(*defaults, L"fill").SetProperty(Key(L"color"), Number(9));
    defaults->SetProperty(Key(L"hidden"), Number(8));
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(9));
    EXPECT_EQ(object->GetProperty(Key(L"hidden")), Number(8));

    Sub(*base, L"fill").SetProperty(Key(L"color"), Number(3));

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(3));
}

TEST_F(StyleResolution, FallsBackToTheDefaultsOfAParentWithoutOwnOnes)
{
    defaults->SetPathProperty(Path({L"fill", L"color"}), Number(9));
    Style change(named.get(), Styles::StyleCategoryName);

    EXPECT_EQ(change.GetPathProperty(Path({L"fill", L"color"})), Number(9));
}

TEST_F(StyleResolution, EndsWithoutAValueWhereNothingSetsOne)
{
    EXPECT_TRUE(fill.GetProperty(Key(L"color")).IsEmpty());
    EXPECT_TRUE(object->GetPathProperty(Path({L"fill", L"color"})).IsEmpty());
    EXPECT_TRUE(object->GetPathProperty(Path({L"unknown", L"color"})).IsEmpty());
}

TEST_F(StyleResolution, AlongAPathFindsWhatTheSubstyleItselfFinds)
{
    Sub(*named, L"fill").SetProperty(Key(L"color"), Number(2));

    EXPECT_EQ(object->GetPathProperty(Path({L"fill", L"color"})), Number(2));
}

TEST_F(StyleResolution, AlongAPathNeedsNoOwnSubstyle)
{
    object->SetSubstyle(Key(L"fill"), nullptr);
    Sub(*base, L"fill").SetProperty(Key(L"color"), Number(3));
    EXPECT_EQ(object->GetPathProperty(Path({L"fill", L"color"})), Number(3));

    Sub(*named, L"fill").SetProperty(Key(L"color"), Number(2));

    EXPECT_EQ(object->GetPathProperty(Path({L"fill", L"color"})), Number(2));
}

TEST_F(StyleResolution, AlongAPathNeedsNoOwnSubstyleForTheDefaults)
{
    object->SetSubstyle(Key(L"fill"), nullptr);
    defaults->SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(9));

    EXPECT_EQ(object->GetPathProperty(Path({L"fill", L"gradient", L"angle"})), Number(9));
    EXPECT_EQ(Sub(*named, L"fill").GetPathProperty(Path({L"gradient", L"angle"})), Number(9));
}

TEST_F(StyleResolution, AlongAPathCreatesNothing)
{
    object->SetSubstyle(Key(L"fill"), nullptr);

    (void)object->GetPathProperty(Path({L"fill", L"color"}));

    EXPECT_EQ(object->GetSubstyle(Key(L"fill"), true), nullptr);
}

TEST_F(StyleResolution, TakesADefaultStyleForNoParent)
{
    defaults->SetProperty(Key(L"hidden"), Number(8));

    EXPECT_EQ(base->GetParent(), nullptr);
    EXPECT_FALSE(base->DoesOverridePathProperty(Path({L"hidden"})));
    Style* const list[] = {defaults.get()};
    EXPECT_FALSE(object->HasParentalDependency(list));
}

TEST_F(StyleResolution, OfADefaultStyleEndsThere)
{
    EXPECT_EQ(ReferenceHost::GetDefaultStyle(*defaults), nullptr);
    EXPECT_TRUE(Sub(*defaults, L"fill").GetProperty(Key(L"color")).IsEmpty());
}

TEST_F(StyleResolution, EndsWithoutTheDefaultsOnceTheyAreTakenAway)
{
    defaults->SetPathProperty(Path({L"fill", L"color"}), Number(9));

    for (Style* style : {base.get(), named.get(), object.get()})
        ReferenceHost::SetDefaultStyle(*style, nullptr);

    EXPECT_TRUE(fill.GetProperty(Key(L"color")).IsEmpty());
}

TEST_F(StyleResolution, SeesAValueThatEqualsTheInheritedOneAsOwn)
{
    named->SetPathProperty(Path({L"fill", L"color"}), Number(2));

    fill.SetProperty(Key(L"color"), Number(2));

    EXPECT_TRUE(object->DoesOverridePathProperty(Path({L"fill", L"color"})));
}

TEST_F(StyleResolution, EndsWhereSubstylesInheritFromEachOtherInARing)
{
    // SetParent refuses such rings, but a copy that is put in place brings its parent along.
    Style donor(&fill, Styles::FillStyleCategoryName);
    named->SetSubstyle(Key(L"fill"), &donor);

    EXPECT_TRUE(fill.GetProperty(Key(L"color")).IsEmpty());
    EXPECT_TRUE(Sub(*named, L"fill").GetProperty(Key(L"color")).IsEmpty());
}

} // namespace
