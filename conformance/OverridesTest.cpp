#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>

HOST_TESTS_SUBJECT(OverridesTest);

// What a style sets itself, and what is left of that when everything in effect is written down.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::PropertyKey;
using Styles::Style;
using Styles::StyleCategoryName;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace
{

/// A style that sets a property itself, one in its fill, and inherits one more.
class Override : public HostTest
{
protected:
    Override()
    {
        style.SetParent(&parent);
        parent.SetPathProperty(Path({L"outline", L"width"}), Number(3));
        style.SetProperty(Key(L"opacity"), Number(2));
        style.SetPathProperty(Path({L"fill", L"color"}), Number(1));
    }

    Style& parent = *host->AddNamedStyle(StyleCategoryName, L"Parent");
    Style& style = *host->AddNamedStyle(StyleCategoryName, L"Child");
};

/// What Style::CreateFlattenedStyle makes of that style.
class FlattenedStyle : public Override
{
protected:
    [[nodiscard]] std::unique_ptr<Style> Flatten()
    {
        return std::unique_ptr<Style>(style.CreateFlattenedStyle(keys));
    }

    std::set<PropertyKey> keys;
};

} // namespace

TEST_F(Override, IsWhatTheStyleItselfSets)
{
    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"opacity"})));
    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"fill", L"color"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"fill", L"type"})));
}

TEST_F(Override, IsNotWhatIsInherited)
{
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"outline", L"width"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"outline"})));
}

TEST_F(Override, OfASubstyleIsAnythingThatItSets)
{
    style.SetPathProperty(Path({L"paragraph", L"tabs", L"width"}), Number(1));

    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"fill"})));
    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"fill", L"*"})));
    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"paragraph"})));
    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"paragraph", L"*"})));
}

TEST_F(Override, IsNotAnEmptySubstyleNorTheEmptyPath)
{
    Part(style, Styles::GetCharacterStyleCategoryName());

    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"character"})));
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"character", L"*"})));
    EXPECT_FALSE(style.DoesOverridePathProperty({}));
}

TEST_F(Override, IsListedByKeyWithoutTheNamesOfSubstyles)
{
    EXPECT_THAT(Styles::GetOverriddenProperties(style), ElementsAre(Key(L"opacity")));
    EXPECT_THAT(Styles::GetOverriddenProperties(Part(style, FillStyleCategoryName)),
                ElementsAre(Key(L"color")));
}

TEST_F(Override, IsListedByPathThroughSubstylesBehindThoseOfTheStyleItself)
{
    style.SetPathProperty(Path({L"fill", L"type"}), Number(1));
    const Styles::PropertyPaths paths = Styles::GetOverriddenPropertyPaths(style);

    EXPECT_THAT(
        paths, UnorderedElementsAre(Path({L"opacity"}), Path({L"fill", L"color"}), Path({L"fill", L"type"})));
    EXPECT_EQ(paths.front(), Path({L"opacity"}));
}

TEST_F(Override, IsNoneInAStyleThatSetsNothing)
{
    const Style nothing(&style, StyleCategoryName);

    EXPECT_THAT(Styles::GetOverriddenProperties(nothing), IsEmpty());
    EXPECT_THAT(Styles::GetOverriddenPropertyPaths(nothing), IsEmpty());
}

TEST_F(FlattenedStyle, SetsItselfWhatTheStyleShows)
{
    const auto flattened = Flatten();

    ASSERT_NE(flattened, nullptr);
    EXPECT_EQ(OwnValue(*flattened, Path({L"opacity"})), Number(2));
    EXPECT_EQ(OwnValue(*flattened, Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(OwnValue(*flattened, Path({L"outline", L"width"})), Number(3));
}

TEST_F(FlattenedStyle, HasTheCategoryAndNoParent)
{
    const auto flattened = Flatten();

    EXPECT_EQ(flattened->GetCategoryName(), StyleCategoryName);
    EXPECT_EQ(flattened->GetParent(), nullptr);
    EXPECT_EQ(flattened->GetOwner(), nullptr);
}

TEST_F(FlattenedStyle, NamesItsTopLevelKeysBesideThoseThatWereNamedBefore)
{
    keys.insert(Key(L"before"));

    static_cast<void>(Flatten());

    EXPECT_THAT(keys, UnorderedElementsAre(Key(L"before"), Key(L"opacity"), Key(L"fill"), Key(L"outline")));
}

TEST_F(FlattenedStyle, OfASubstyleHoldsWhatTheOwnersParentsSet)
{
    parent.SetPathProperty(Path({L"fill", L"type"}), Number(4));

    const std::unique_ptr<Style> flattened(Part(style, FillStyleCategoryName).CreateFlattenedStyle(keys));

    EXPECT_EQ(OwnValue(*flattened, Path({L"color"})), Number(1));
    EXPECT_EQ(OwnValue(*flattened, Path({L"type"})), Number(4));
    EXPECT_THAT(keys, UnorderedElementsAre(Key(L"color"), Key(L"type")));
}

TEST_F(FlattenedStyle, HoldsTheDefaultsToo)
{
    if (GetSource().GetDefaultStyles().empty())
        GTEST_SKIP() << "the document has no default styles";
    GetSource().GetDefaultStyles().front()->SetPathProperty(Path({L"fill", L"type"}), Number(8));
    const Style& object = *host->AddObject().style;

    const std::unique_ptr<Style> flattened(object.CreateFlattenedStyle(keys));

    EXPECT_EQ(OwnValue(*flattened, Path({L"fill", L"type"})), Number(8));
    EXPECT_THAT(keys, Contains(Key(L"fill")));
}

TEST_F(FlattenedStyle, LeavesOutSubstylesWithoutAValue)
{
    Part(style, Styles::GetCharacterStyleCategoryName());

    const auto flattened = Flatten();

    EXPECT_EQ(flattened->GetSubstyle(Styles::GetCharacterStyleCategoryName(), false), nullptr);
}

TEST_F(FlattenedStyle, LeavesTheStyleAsItIs)
{
    static_cast<void>(Flatten());

    EXPECT_EQ(style.GetParent(), &parent);
    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"outline", L"width"})));
}

} // namespace HostTests
