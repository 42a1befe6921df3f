#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/StyleSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <utility>

HOST_TESTS_SUBJECT(StyleSourceTest);

// The commands of a style source beside the modifier.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::PropertyPaths;
using Styles::Style;
using Styles::StyleCategoryName;
using testing::Contains;
using testing::ElementsAre;

namespace
{

/// An object of a named style, which inherits from a base style.
class StyleSource : public HostTest
{
protected:
    StyleSource()
    {
        named.SetParent(&base);
        object.style->SetParent(&named);
    }

    [[nodiscard]] Style* FindNamed(const wchar_t* name) const
    {
        return GetSource().GetStyleSheet()->GetStyle(name);
    }

    [[nodiscard]] OvxUtils::Any ShownColor() const
    {
        return object.style->GetPathProperty(Path({L"fill", L"color"}));
    }

    Style& base = *host->AddNamedStyle(StyleCategoryName, L"Base");
    Style& named = *host->AddNamedStyle(StyleCategoryName, L"Named");
    Style& fillOnly = *host->AddNamedStyle(FillStyleCategoryName, L"Fill only");
    DocumentObject object = host->AddObject();
    Style& fill = Part(*object.style, FillStyleCategoryName);
};

/// Moving the values of the object's fill into that of its named style.
class ApplyingToParent : public StyleSource
{
protected:
    ApplyingToParent()
    {
        fill.SetProperty(Key(L"color"), Number(1));
        fill.SetProperty(Key(L"type"), Number(2));
    }

    /// Takes down what is to be cleared, and clears it as a panel does.
    void Apply(const PropertyPaths& paths)
    {
        GetSource().ApplyToParent(
            [this](const PropertyPaths& toClear)
            {
                cleared.insert(cleared.end(), toClear.begin(), toClear.end());
                const Style nothing;
                fill.SetProperties(toClear, &nothing);
            },
            &parentFill, paths, std::make_unique<Style>(fill));
    }

    Style& parentFill = Part(named, FillStyleCategoryName);
    PropertyPaths cleared;
};

} // namespace

TEST_F(StyleSource, GivesANamedStyleToTheSelectedObjects)
{
    const DocumentObject another = host->AddObject();
    const DocumentObject unselected = host->AddObject();
    host->Select({object, another});

    GetSource().ApplyStyle(&base, false);

    EXPECT_EQ(object.style->GetParent(), &base);
    EXPECT_EQ(another.style->GetParent(), &base);
    EXPECT_EQ(unselected.style->GetParent(), nullptr);
}

TEST_F(StyleSource, GivesAStyleOfOneCategoryToThatPartOfTheSelectedObjects)
{
    host->Select({object});

    GetSource().ApplyStyle(&fillOnly, false);

    EXPECT_EQ(fill.GetParent(), &fillOnly);
    EXPECT_EQ(object.style->GetParent(), &named);
}

TEST_F(StyleSource, KeepsOwnValuesWhereAStyleIsGiven)
{
    fill.SetProperty(Key(L"color"), Number(1));
    host->Select({object});

    GetSource().ApplyStyle(&base, false);

    EXPECT_EQ(OwnValue(fill, Path({L"color"})), Number(1));
}

TEST_F(StyleSource, GivesAStyleToNobodyWithoutASelection)
{
    GetSource().ApplyStyle(&base, false);

    EXPECT_EQ(object.style->GetParent(), &named);
}

TEST_F(StyleSource, MakesAStyleTheParentOfAnother)
{
    GetSource().SetParent(object.style, &base, true);
    GetSource().SetParent(&fill, &fillOnly, true);

    EXPECT_EQ(object.style->GetParent(), &base);
    EXPECT_EQ(fill.GetParent(), &fillOnly);
}

TEST_F(StyleSource, RefusesAParentThatWouldCloseACycle)
{
    GetSource().SetParent(&base, &named, true);
    GetSource().SetParent(&named, &named, true);

    EXPECT_EQ(base.GetParent(), nullptr);
    EXPECT_EQ(named.GetParent(), &base);
}

TEST_F(StyleSource, MakesANamedStyleFromTheSelection)
{
    fill.SetProperty(Key(L"color"), Number(1));
    host->Select({object});

    GetSource().CreateStyle(StyleCategoryName, L"From selection");

    const Style* const made = FindNamed(L"From selection");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetCategoryName(), StyleCategoryName);
    EXPECT_EQ(made->GetPathProperty(Path({L"fill", L"color"})), Number(1));
    EXPECT_THAT(GetSource().GetStyleSheet()->GetStyleNames(StyleCategoryName),
                Contains(OvxStringT(L"From selection")));
}

TEST_F(StyleSource, MakesANamedStyleOfOneCategoryFromThatPartOfTheSelection)
{
    fill.SetProperty(Key(L"color"), Number(1));
    host->Select({object});

    GetSource().CreateStyle(FillStyleCategoryName, L"From selection");

    const Style* const made = FindNamed(L"From selection");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetCategoryName(), FillStyleCategoryName);
    EXPECT_EQ(made->GetProperty(Key(L"color")), Number(1));
}

TEST_F(StyleSource, LeavesTheLookOfTheSelectionAsItIsWhenAStyleIsMadeFromIt)
{
    Part(base, FillStyleCategoryName).SetProperty(Key(L"type"), Number(3));
    fillOnly.SetProperty(Key(L"width"), Number(4));
    fill.SetParent(&fillOnly);
    fill.SetProperty(Key(L"color"), Number(1));
    host->Select({object});

    GetSource().CreateStyle(FillStyleCategoryName, L"From selection");

    EXPECT_EQ(ShownColor(), Number(1));
    EXPECT_EQ(fill.GetProperty(Key(L"width")), Number(4));
    EXPECT_EQ(fill.GetProperty(Key(L"type")), Number(3));
}

TEST_F(StyleSource, MakesANamedStyleWithoutASelectionToo)
{
    GetSource().CreateStyle(FillStyleCategoryName, L"From nothing");

    ASSERT_NE(FindNamed(L"From nothing"), nullptr);
    EXPECT_EQ(FindNamed(L"From nothing")->GetCategoryName(), FillStyleCategoryName);
}

TEST_F(StyleSource, ReplacesWhatAStyleSetsAtThePaths)
{
    fill.SetProperty(Key(L"color"), Number(1));
    fill.SetProperty(Key(L"type"), Number(2));
    fill.SetProperty(Key(L"width"), Number(3));
    fill.SetParent(&fillOnly);

    GetSource().ReplaceProperties(&fill, {Path({L"color"}), Path({L"type"})},
                                  Change(FillStyleCategoryName, L"color", 7), false, false);

    EXPECT_EQ(OwnValue(fill, Path({L"color"})), Number(7));
    EXPECT_EQ(OwnValue(fill, Path({L"type"})), Nothing());
    EXPECT_EQ(OwnValue(fill, Path({L"width"})), Number(3));
    EXPECT_EQ(fill.GetParent(), &fillOnly);
}

TEST_F(StyleSource, DropsTheParentOfAStyleThatKeepsItsLook)
{
    Part(named, FillStyleCategoryName).SetProperty(Key(L"color"), Number(1));
    std::set<Styles::PropertyKey> keys;
    std::unique_ptr<Style> flattened(object.style->CreateFlattenedStyle(keys));

    GetSource().ReplaceProperties(object.style, Styles::MakePaths(keys), std::move(flattened), true, false);

    EXPECT_EQ(object.style->GetParent(), nullptr);
    EXPECT_EQ(OwnValue(*object.style, Path({L"fill", L"color"})), Number(1));
}

TEST_F(ApplyingToParent, WritesTheValuesAndHasThemClearedWhereTheyCameFrom)
{
    Apply({Path({L"color"}), Path({L"type"})});

    EXPECT_EQ(OwnValue(parentFill, Path({L"color"})), Number(1));
    EXPECT_EQ(OwnValue(parentFill, Path({L"type"})), Number(2));
    EXPECT_THAT(cleared, testing::UnorderedElementsAre(Path({L"color"}), Path({L"type"})));
    EXPECT_EQ(fill.GetOwnPropertyCount(), 0U);
}

TEST_F(ApplyingToParent, LeavesTheLookAsItIs)
{
    Apply({Path({L"color"}), Path({L"type"})});

    EXPECT_EQ(ShownColor(), Number(1));
    EXPECT_EQ(fill.GetProperty(Key(L"type")), Number(2));
}

TEST_F(ApplyingToParent, ConcernsThePathsAlone)
{
    parentFill.SetProperty(Key(L"width"), Number(9));

    Apply({Path({L"color"})});

    EXPECT_EQ(OwnValue(parentFill, Path({L"type"})), Nothing());
    EXPECT_EQ(OwnValue(parentFill, Path({L"width"})), Number(9));
    EXPECT_EQ(OwnValue(fill, Path({L"type"})), Number(2));
    EXPECT_THAT(cleared, ElementsAre(Path({L"color"})));
}

} // namespace HostTests
