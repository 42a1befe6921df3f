#include "reference_host/services/DocumentStylesSource.h"

#include "host/style_model/CategoryNames.h"
#include "tests/reference_host/services/FakeDocumentStyles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using ReferenceHost::DocumentStylesSource;
using Styles::PropertyKey;
using Styles::Style;
using ::testing::ElementsAre;

namespace
{

PropertyKey Key(const wchar_t* text)
{
    return PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

class EmptySheet final : public Styles::StyleSheet
{
public:
    [[nodiscard]] Style* GetStyle(const OvxStringT& /*name*/) const override { return nullptr; }

    [[nodiscard]] OvxStringT GetStyleName(const Style* /*style*/) const override { return {}; }

    [[nodiscard]] std::vector<OvxStringT> GetStyleNames(const PropertyKey& /*category*/) const override
    {
        return {};
    }

    [[nodiscard]] OvxStringT GetUnusedStyleName(const OvxStringT& base) const override { return base; }
};

/// A source over a document with a sheet and one default style that cannot be changed.
class StyleSource : public ::testing::Test
{
protected:
    StyleSource()
    {
        document.sheet = &sheet;
        document.defaults = {&defaultStyle};
        style.SetProperty(Key(L"color"), OvxUtils::Any(1));
    }

    std::unique_ptr<Style> ChangeStyle()
    {
        auto change = std::make_unique<Style>(nullptr, Styles::FillStyleCategoryName);
        change->SetProperty(Key(L"color"), OvxUtils::Any(2));
        return change;
    }

    EmptySheet sheet;
    Style defaultStyle{nullptr, Styles::StyleCategoryName};
    Style parent{nullptr, Styles::FillStyleCategoryName};
    Style style{nullptr, Styles::FillStyleCategoryName};
    FakeDocumentStyles document;
    DocumentStylesSource source{document};
};

} // namespace

TEST_F(StyleSource, GivesTheSheetAndTheDefaultStylesOfItsDocument)
{
    EXPECT_EQ(source.GetStyleSheet(), &sheet);
    EXPECT_THAT(source.GetDefaultStyles(), ElementsAre(&defaultStyle));
}

TEST_F(StyleSource, HasNoSheetsBesideThatOfTheDocument)
{
    EXPECT_EQ(source.GetExternalStyleSheet(L"corporate"), nullptr);
    EXPECT_EQ(source.GetDefaultStyleSheet(), nullptr);
}

TEST_F(StyleSource, MergesCharacterStylesUnlessItIsToldNotTo)
{
    const bool ignoredAtFirst = source.ShouldIgnoreCharacterStyleSiblings();

    source.SetIgnoreCharacterStyleSiblings(true);

    EXPECT_FALSE(ignoredAtFirst);
    EXPECT_TRUE(source.ShouldIgnoreCharacterStyleSiblings());
}

TEST_F(StyleSource, OffersNoWayOfWriting)
{
    EXPECT_EQ(source.GetMultipleStyleModifier(), nullptr);
    EXPECT_EQ(source.GetTransactionOverrides(), nullptr);
}

TEST_F(StyleSource, KeepsStylesAsTheyAreWhenTheyAreToChange)
{
    bool isCleared = false;
    const Styles::PropertyPaths paths{{Key(L"color")}};

    source.ApplyToParent([&](const Styles::PropertyPaths&) { isCleared = true; }, &parent, paths,
                         ChangeStyle());
    source.ReplaceProperties(&style, paths, ChangeStyle(), true, false);
    source.SetParent(&style, &parent, true);

    EXPECT_FALSE(isCleared);
    EXPECT_TRUE(parent.IsEmpty());
    EXPECT_EQ(style.GetProperty(Key(L"color")), OvxUtils::Any(1));
    EXPECT_EQ(style.GetParent(), nullptr);
}

TEST_F(StyleSource, GivesPresetItemsTheirNamesAndPositions)
{
    WCmnUI_ListItem first;
    WCmnUI_ListItem second;

    source.FillPresetItems({{L"Sunset", &first, 0}, {L"Sea", &second, 1}, {L"lost", nullptr, 2}},
                           L"FillPresets");

    EXPECT_EQ(first.GetText(), OvxStringT(L"Sunset"));
    EXPECT_EQ(first.GetIndex(), 0);
    EXPECT_EQ(second.GetText(), OvxStringT(L"Sea"));
    EXPECT_EQ(second.GetIndex(), 1);
}
