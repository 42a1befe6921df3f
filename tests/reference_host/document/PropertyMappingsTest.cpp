#include "reference_host/document/PropertyMappings.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

#include <string>

using ReferenceHost::BuiltInProperties;
using ReferenceHost::FindPropertyElement;
using ReferenceHost::PropertyElement;
using ReferenceHost::PropertyMapping;
using ReferenceHost::PropertyMappings;
using testing::ElementsAre;

namespace
{

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

std::vector<std::wstring> KeysOf(const Styles::PropertyKey& category)
{
    std::vector<std::wstring> keys;
    for (const PropertyMapping& row : BuiltInProperties())
    {
        const std::wstring key = row.key.GetString().Wide();
        if (row.category == category && (keys.empty() || keys.back() != key))
            keys.push_back(key);
    }
    return keys;
}

TEST(PropertyMappings, HoldsThePropertiesOfTheFourCategories)
{
    EXPECT_THAT(KeysOf(Styles::FillStyleCategoryName),
                ElementsAre(L"type", L"color", L"transparency", L"gradient", L"hatch", L"bitmap"));
    EXPECT_THAT(KeysOf(Styles::OutlineStyleCategoryName),
                ElementsAre(L"type", L"color", L"width", L"transparency", L"dash", L"join", L"cap",
                            L"start-arrow", L"end-arrow"));
    EXPECT_THAT(KeysOf(Styles::GetParagraphStyleCategoryName()),
                ElementsAre(L"align", L"left-indent", L"right-indent", L"first-line-indent", L"space-before",
                            L"space-after", L"line-spacing"));
    EXPECT_THAT(KeysOf(Styles::GetCharacterStyleCategoryName()),
                ElementsAre(L"font", L"size", L"weight", L"posture", L"underline", L"strikethrough", L"color",
                            L"letter-spacing"));
}

TEST(PropertyMappings, ListsTheBuiltInCategoriesFirst)
{
    PropertyMapping shadow;
    shadow.category = Key(L"shadow");
    shadow.key = Key(L"depth");
    shadow.attribute = "depth";

    const PropertyMappings table({shadow});

    EXPECT_THAT(table.GetCategories(),
                ElementsAre(Styles::FillStyleCategoryName, Styles::OutlineStyleCategoryName,
                            Styles::GetParagraphStyleCategoryName(), Styles::GetCharacterStyleCategoryName(),
                            Key(L"shadow")));
}

TEST(PropertyMappings, FindsAllRowsOfAnAttribute)
{
    const PropertyMappings table({});

    std::vector<std::wstring> keys;
    for (const std::size_t place : table.FindRows("margin"))
        keys.push_back(table.GetRows()[place].key.GetString().Wide());

    EXPECT_THAT(keys, ElementsAre(L"left-indent", L"right-indent", L"space-before", L"space-after"));
    EXPECT_TRUE(table.FindRows("no-such-attribute").empty());
}

TEST(PropertyMappings, KnowsTheFirstRowOfAProperty)
{
    const PropertyMappings table({});
    const std::size_t family = table.FindRows("font-family").front();
    const std::size_t name = table.FindRows("font-name").front();

    EXPECT_EQ(table.GetFirstRow(family), name);
    EXPECT_EQ(table.GetFirstRow(name), name);
    EXPECT_EQ(table.FindRow(Styles::GetCharacterStyleCategoryName(), Key(L"font")), &table.GetRows()[name]);
}

TEST(PropertyMappings, HasNoRowForAnUnknownProperty)
{
    const PropertyMappings table({});

    EXPECT_EQ(table.FindRow(Styles::FillStyleCategoryName, Key(L"width")), nullptr);
}

TEST(PropertyElements, AreFoundByTheirLocalNames)
{
    EXPECT_EQ(FindPropertyElement("graphic-properties"), PropertyElement::Graphic);
    EXPECT_EQ(FindPropertyElement("paragraph-properties"), PropertyElement::Paragraph);
    EXPECT_EQ(FindPropertyElement("text-properties"), PropertyElement::Text);
    EXPECT_EQ(FindPropertyElement("drawing-page-properties"), std::nullopt);
}

} // namespace
