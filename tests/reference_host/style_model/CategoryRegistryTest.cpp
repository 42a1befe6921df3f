#include "reference_host/style_model/CategoryRegistry.h"

#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/StyleManager.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

using ReferenceHost::CategoryRegistry;
using Styles::PropertyKey;

TEST(CategoryRegistry, KnowsFiveCategoriesFromTheStart)
{
    const CategoryRegistry registry;

    EXPECT_NE(registry.FindCategory(Styles::StyleCategoryName), nullptr);
    EXPECT_NE(registry.FindCategory(Styles::FillStyleCategoryName), nullptr);
    EXPECT_NE(registry.FindCategory(Styles::OutlineStyleCategoryName), nullptr);
    EXPECT_NE(registry.FindCategory(Styles::GetParagraphStyleCategoryName()), nullptr);
    EXPECT_NE(registry.FindCategory(Styles::GetCharacterStyleCategoryName()), nullptr);
}

TEST(CategoryRegistry, TakesDisplayNamesFromTheResources)
{
    const CategoryRegistry registry;

    EXPECT_EQ(registry.FindCategory(Styles::FillStyleCategoryName)->GetDisplayName(),
              Framework::Resources::GetString(L"category.fill"));
    EXPECT_EQ(registry.FindCategory(Styles::GetParagraphStyleCategoryName())->GetDisplayName(),
              Framework::Resources::GetString(L"category.paragraph"));
}

TEST(CategoryRegistry, KnowsNoCategoryThatNobodyRegistered)
{
    const CategoryRegistry registry;

    EXPECT_EQ(registry.FindCategory(Key(L"shadow")), nullptr);
    EXPECT_EQ(registry.FindCategory(PropertyKey::Empty), nullptr);
}

TEST(CategoryRegistry, ShowsADisplayNameWithoutATextAsItIs)
{
    CategoryRegistry registry;

    registry.RegisterCategory(Key(L"both"), L"Lines & Fills");

    EXPECT_EQ(registry.FindCategory(Key(L"both"))->GetDisplayName(), L"Lines & Fills");
}

TEST(CategoryRegistry, GivesTheSameObjectEachTime)
{
    CategoryRegistry registry;
    registry.RegisterCategory(Key(L"shadow"), L"Shadow");

    EXPECT_EQ(registry.FindCategory(Key(L"shadow")), registry.FindCategory(Key(L"shadow")));
}

TEST(CategoryRegistry, KeepsACategoryThatIsRegisteredAgain)
{
    CategoryRegistry registry;
    registry.RegisterCategory(Key(L"shadow"), L"Shadow");
    const auto first = registry.FindCategory(Key(L"shadow"));

    registry.RegisterCategory(Key(L"shadow"), L"Other");

    EXPECT_EQ(registry.FindCategory(Key(L"shadow")), first);
    EXPECT_EQ(first->GetDisplayName(), L"Shadow");
}

TEST(CategoryRegistry, RegistersNoCategoryWithoutAName)
{
    CategoryRegistry registry;

    registry.RegisterCategory(PropertyKey::Empty, L"Nothing");

    EXPECT_EQ(registry.FindCategory(PropertyKey::Empty), nullptr);
}

TEST(CategoryRegistry, JoinsThePropertiesOfSeveralRegistrations)
{
    CategoryRegistry registry;

    registry.RegisterProperties(Key(L"fill"), {Key(L"color"), Key(L"type")});
    registry.RegisterProperties(Key(L"fill"), {Key(L"type"), Key(L"hatch")});
    registry.RegisterProperties(Key(L"outline"), {Key(L"width")});

    EXPECT_EQ(registry.GetProperties(Key(L"fill")),
              (std::set<PropertyKey>{Key(L"color"), Key(L"type"), Key(L"hatch")}));
}

TEST(CategoryRegistry, HasNoPropertiesWhereNobodyRegisteredAny)
{
    const CategoryRegistry registry;

    EXPECT_TRUE(registry.GetProperties(Styles::FillStyleCategoryName).empty());
}

TEST(StyleManager, IsOneForTheProcess)
{
    Styles::StyleManager& manager = OvxUtils::Singleton<Styles::StyleManager>::GetInstance();

    EXPECT_EQ(&manager, &OvxUtils::Singleton<Styles::StyleManager>::GetInstance());
}

TEST(StyleManager, KnowsTheCategoriesOfTheRegistry)
{
    CategoryRegistry::GetInstance().RegisterCategory(Key(L"managed"), L"Managed & more");
    Styles::StyleManager& manager = OvxUtils::Singleton<Styles::StyleManager>::GetInstance();

    ASSERT_NE(manager.GetCategory(Key(L"managed")), nullptr);
    EXPECT_EQ(manager.GetCategory(Key(L"managed"))->GetDisplayName(), L"Managed & more");
    EXPECT_NE(manager.GetCategory(Styles::StyleCategoryName), nullptr);
    EXPECT_EQ(manager.GetCategory(Key(L"unmanaged")), nullptr);
}

} // namespace
