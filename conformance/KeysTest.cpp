#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/StyleManager.h"
#include "host/style_model/SubStyle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

HOST_TESTS_SUBJECT(KeysTest);

// Keys and paths, references to styles, and the categories that keys name.
namespace HostTests
{

using Styles::PooledString;
using Styles::PropertyKey;
using Styles::StringPool;
using Styles::Style;
using Styles::SubStyle;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

TEST(Key, IsOneForEqualTexts)
{
    const std::wstring text = L"color";

    EXPECT_EQ(PropertyKey(PooledString<StringPool>(OvxStringT(text))), Key(L"color"));
    EXPECT_EQ(Key(L"color").GetPooled().GetIdentity(), StringPool::Intern(text));
    EXPECT_FALSE(Key(L"color") == Key(L"Color"));
}

TEST(Key, KeepsItsTextWhenTheOneItWasMadeFromIsGone)
{
    std::wstring text(500, L'x');
    const PropertyKey key{PooledString<StringPool>(OvxStringViewT(text))};

    text.assign(500, L'y');

    EXPECT_EQ(key.GetString(), std::wstring(500, L'x'));
    EXPECT_EQ(key.GetPooled().GetView().size(), 500U);
}

TEST(Key, OfThePieceOfATextHasThatPieceAlone)
{
    const std::wstring text = L"fill.color";

    const PropertyKey key{PooledString<StringPool>(OvxStringViewT(text.c_str(), 4))};

    EXPECT_EQ(key.GetString(), L"fill");
    EXPECT_EQ(key, Styles::FillStyleCategoryName);
}

TEST(Key, StandsBeforeOrBehindAnotherAndAlwaysTheSameWay)
{
    const PropertyKey one = Key(L"one");
    const PropertyKey other = Key(L"other");

    EXPECT_NE(one < other, other < one);
    EXPECT_EQ(one < other, Key(L"one") < Key(L"other"));
}

TEST(Key, OfNoTextIsTheEmptyOne)
{
    EXPECT_EQ(Key(L""), PropertyKey::Empty);
    EXPECT_EQ(PropertyKey(), PropertyKey::Empty);
    EXPECT_EQ(StringPool::Intern(L""), nullptr);
    EXPECT_EQ(PropertyKey::Empty.GetString(), L"");
}

TEST(Key, OfEachCategoryHasItsText)
{
    EXPECT_EQ(Styles::StyleCategoryName.GetString(), L"style");
    EXPECT_EQ(Styles::FillStyleCategoryName.GetString(), L"fill");
    EXPECT_EQ(Styles::OutlineStyleCategoryName.GetString(), L"outline");
    EXPECT_EQ(Styles::GetParagraphStyleCategoryName().GetString(), L"paragraph");
    EXPECT_EQ(Styles::GetCharacterStyleCategoryName().GetString(), L"character");
    EXPECT_EQ(Styles::StyleCategoryName, Key(L"style"));
    EXPECT_EQ(Styles::OutlineStyleCategoryName, Key(L"outline"));
}

TEST(PropertyPath, OfAKeyIsThatKey)
{
    EXPECT_THAT(Styles::MakePath(Key(L"color")), ElementsAre(Key(L"color")));
}

TEST(PropertyPath, ThroughAKeyHasItInFront)
{
    EXPECT_EQ(Styles::MakePath(Key(L"fill"), Path({L"shade", L"depth"})),
              Path({L"fill", L"shade", L"depth"}));
    EXPECT_EQ(Styles::MakePath(Key(L"fill"), {}), Path({L"fill"}));
}

TEST(PropertyPath, IsMadeForEachKeyInTheOrderOfTheSet)
{
    const std::set<PropertyKey> keys{Key(L"one"), Key(L"two"), Key(L"three")};

    const Styles::PropertyPaths paths = Styles::MakePaths(keys);

    ASSERT_EQ(paths.size(), 3U);
    std::size_t position = 0;
    for (const PropertyKey& key : keys)
        EXPECT_THAT(paths[position++], ElementsAre(key));
    EXPECT_THAT(Styles::MakePaths({}), IsEmpty());
}

TEST(StyleReferences, KeepOrderAndNullOnes)
{
    Style first;
    Style second;
    const std::vector<Style*> styles{&first, nullptr, &second, &first};

    const std::vector<SubStyle> references = Styles::StylesToSubStyles(styles);

    ASSERT_EQ(references.size(), 4U);
    EXPECT_EQ(static_cast<Style*>(references[0]), &first);
    EXPECT_EQ(static_cast<Style*>(references[1]), nullptr);
    EXPECT_EQ(Styles::SubStylesToStyles(references), styles);
}

// The categories: what the style manager and the free function tell of them.
using Category = HostTest;

TEST_F(Category, IsKnownWithANameForPeopleForEachThatPanelsUse)
{
    auto& manager = OvxUtils::Singleton<Styles::StyleManager>::GetInstance();

    for (const PropertyKey& key :
         {Styles::StyleCategoryName, Styles::FillStyleCategoryName, Styles::OutlineStyleCategoryName,
          Styles::GetParagraphStyleCategoryName(), Styles::GetCharacterStyleCategoryName()})
    {
        const std::shared_ptr<Styles::StyleCategory> category = manager.GetCategory(key);
        ASSERT_NE(category, nullptr);
        EXPECT_FALSE(category->GetDisplayName().empty());
    }
}

TEST_F(Category, ThatNobodyMadeKnownIsNone)
{
    auto& manager = OvxUtils::Singleton<Styles::StyleManager>::GetInstance();

    EXPECT_EQ(manager.GetCategory(Key(L"no such category")), nullptr);
    EXPECT_EQ(manager.GetCategory(PropertyKey::Empty), nullptr);
}

TEST_F(Category, HasItsPropertiesSetOrNot)
{
    host->RegisterProperties(Styles::OutlineStyleCategoryName, {Key(L"width")});
    host->RegisterProperties(Styles::OutlineStyleCategoryName, {Key(L"dash")});
    const Style outline(nullptr, Styles::OutlineStyleCategoryName);

    EXPECT_THAT(Styles::GetStyleCategoryProperties(outline), IsSupersetOf({Key(L"width"), Key(L"dash")}));
}

TEST_F(Category, ThatNobodyMadeKnownHasNoProperties)
{
    Style stray(nullptr, Key(L"no such category"));
    stray.SetProperty(Key(L"color"), Number(1));

    EXPECT_THAT(Styles::GetStyleCategoryProperties(stray), IsEmpty());
}

} // namespace HostTests
