#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

// A style that holds as its own what another one shows.
namespace
{

using Styles::PropertyKey;
using Styles::Style;

class StyleFlattening : public testing::Test
{
protected:
    std::unique_ptr<Style> Flatten(const Style& style)
    {
        return std::unique_ptr<Style>(style.CreateFlattenedStyle(keys));
    }

    std::unique_ptr<Style> base = MakeWhole();
    std::unique_ptr<Style> object = MakeWhole(base.get());
    std::set<PropertyKey> keys;
};

TEST_F(StyleFlattening, TakesOwnAndInheritedValues)
{
    base->SetProperty(Key(L"hidden"), Number(1));
    base->SetPathProperty(Path({L"fill", L"color"}), Number(2));
    base->SetPathProperty(Path({L"fill", L"angle"}), Number(3));
    object->SetPathProperty(Path({L"fill", L"angle"}), Number(4));

    const auto flattened = Flatten(*object);

    EXPECT_EQ(flattened->GetProperty(Key(L"hidden")), Number(1));
    EXPECT_EQ(flattened->GetPathProperty(Path({L"fill", L"color"})), Number(2));
    EXPECT_EQ(flattened->GetPathProperty(Path({L"fill", L"angle"})), Number(4));
}

TEST_F(StyleFlattening, StandsForItself)
{
    base->SetPathProperty(Path({L"fill", L"color"}), Number(2));

    const auto flattened = Flatten(*object);
    base->SetPathProperty(Path({L"fill", L"color"}), Number(9));

    EXPECT_EQ(flattened->GetParent(), nullptr);
    EXPECT_EQ(flattened->GetOwner(), nullptr);
    EXPECT_EQ(flattened->GetCategoryName(), Styles::StyleCategoryName);
    EXPECT_EQ(flattened->GetPathProperty(Path({L"fill", L"color"})), Number(2));
    EXPECT_EQ(Sub(*flattened, L"fill").GetParent(), nullptr);
}

TEST_F(StyleFlattening, CollectsTheKeysOfPropertiesAndSubstyles)
{
    base->SetProperty(Key(L"hidden"), Number(1));
    base->SetPathProperty(Path({L"fill", L"color"}), Number(2));
    keys.insert(Key(L"before"));

    Flatten(*object);

    EXPECT_EQ(keys, (std::set<PropertyKey>{Key(L"before"), Key(L"hidden"), Key(L"fill")}));
}

TEST_F(StyleFlattening, LeavesOutSubstylesWithoutValues)
{
    base->SetPathProperty(Path({L"fill", L"color"}), Number(2));

    const auto flattened = Flatten(*object);

    EXPECT_EQ(flattened->GetSubstyle(Key(L"outline"), true), nullptr);
}

TEST_F(StyleFlattening, TakesSubstylesThatOnlyAParentHas)
{
    base->SetPathProperty(Path({L"shadow", L"blur", L"radius"}), Number(5));

    const auto flattened = Flatten(*object);

    EXPECT_EQ(flattened->GetPathProperty(Path({L"shadow", L"blur", L"radius"})), Number(5));
    EXPECT_EQ(Sub(*flattened, L"shadow").GetCategoryName(), Key(L"shadow"));
}

TEST_F(StyleFlattening, TakesWhatASubstyleInheritsThroughItsOwner)
{
    base->SetPathProperty(Path({L"fill", L"color"}), Number(2));
    base->SetPathProperty(Path({L"fill", L"gradient", L"angle"}), Number(3));

    const auto flattened = Flatten(Sub(*object, L"fill"));

    EXPECT_EQ(flattened->GetCategoryName(), Key(L"fill"));
    EXPECT_EQ(flattened->GetProperty(Key(L"color")), Number(2));
    EXPECT_EQ(flattened->GetPathProperty(Path({L"gradient", L"angle"})), Number(3));
}

TEST_F(StyleFlattening, TakesWhatTheParentsOfASubstyleSet)
{
    Style parentOfFill;
    parentOfFill.SetProperty(Key(L"color"), Number(7));
    Sub(*object, L"fill").SetParent(&parentOfFill);

    const auto flattened = Flatten(*object);

    EXPECT_EQ(flattened->GetPathProperty(Path({L"fill", L"color"})), Number(7));
}

TEST_F(StyleFlattening, TakesTheDefaultsInButOnlyAfterTheParents)
{
    Style defaults;
    defaults.SetPathProperty(Path({L"fill", L"color"}), Number(8));
    defaults.SetPathProperty(Path({L"fill", L"angle"}), Number(9));
    base->SetPathProperty(Path({L"fill", L"angle"}), Number(3));
    ReferenceHost::SetDefaultStyle(*object, &defaults);

    const auto flattened = Flatten(*object);

    EXPECT_EQ(flattened->GetPathProperty(Path({L"fill", L"color"})), Number(8));
    EXPECT_EQ(flattened->GetPathProperty(Path({L"fill", L"angle"})), Number(3));
    EXPECT_EQ(ReferenceHost::GetDefaultStyle(*flattened), nullptr);
}

TEST_F(StyleFlattening, OfAStyleThatShowsNothingIsEmpty)
{
    const auto flattened = Flatten(*object);

    EXPECT_TRUE(flattened->IsEmpty());
    EXPECT_TRUE(keys.empty());
}

} // namespace
