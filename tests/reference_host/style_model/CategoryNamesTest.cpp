#include "host/style_model/CategoryNames.h"

#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

namespace
{

// Made while this module is loaded, in whatever order its initialisers run.
const OvxStringT textAtStart = Styles::FillStyleCategoryName.GetString();
const bool wasPooledAtStart = Key(L"outline") == Styles::OutlineStyleCategoryName;
const bool wasEmptyAtStart = Styles::PropertyKey::Empty == Styles::PropertyKey();

TEST(CategoryNames, HaveTheirTexts)
{
    EXPECT_EQ(Styles::StyleCategoryName.GetString(), L"style");
    EXPECT_EQ(Styles::FillStyleCategoryName.GetString(), L"fill");
    EXPECT_EQ(Styles::OutlineStyleCategoryName.GetString(), L"outline");
    EXPECT_EQ(Styles::GetParagraphStyleCategoryName().GetString(), L"paragraph");
    EXPECT_EQ(Styles::GetCharacterStyleCategoryName().GetString(), L"character");
}

TEST(CategoryNames, EqualKeysMadeFromTheirTexts)
{
    EXPECT_EQ(Styles::StyleCategoryName, Key(L"style"));
    EXPECT_EQ(Styles::FillStyleCategoryName, Key(L"fill"));
    EXPECT_EQ(Styles::OutlineStyleCategoryName, Key(L"outline"));
    EXPECT_EQ(Styles::GetParagraphStyleCategoryName(), Key(L"paragraph"));
    EXPECT_EQ(Styles::GetCharacterStyleCategoryName(), Key(L"character"));
}

TEST(CategoryNames, AreUsableFromStaticInitialisers)
{
    EXPECT_EQ(textAtStart, L"fill");
    EXPECT_TRUE(wasPooledAtStart);
    EXPECT_TRUE(wasEmptyAtStart);
}

TEST(PropertyKey, IsOnePointerWide)
{
    EXPECT_EQ(sizeof(Styles::PropertyKey), sizeof(void*));
}

TEST(PropertyKey, WithoutANameIsTheEmptyOne)
{
    EXPECT_EQ(Styles::PropertyKey(), Styles::PropertyKey::Empty);
    EXPECT_EQ(Key(L""), Styles::PropertyKey::Empty);
    EXPECT_EQ(Styles::PropertyKey::Empty.GetString(), L"");
}

} // namespace
