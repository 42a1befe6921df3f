#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"

#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(CopiedPropertiesTest);

// Style::SetProperties: every write of the library ends in it.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

class CopyingProperties : public HostTest
{
protected:
    CopyingProperties() { destination.SetPathProperty(Path({L"fill", L"color"}), Number(1)); }

    Style& destination = *host->AddNamedStyle(StyleCategoryName, L"Destination");
    Style source{nullptr, StyleCategoryName};
};

} // namespace

TEST_F(CopyingProperties, TakesWhatIsListedAndNothingElse)
{
    destination.SetPathProperty(Path({L"fill", L"type"}), Number(4));
    source.SetPathProperty(Path({L"fill", L"color"}), Number(2));
    source.SetPathProperty(Path({L"fill", L"type"}), Number(3));

    destination.SetProperties({Path({L"fill", L"color"})}, &source);

    EXPECT_EQ(OwnValue(destination, Path({L"fill", L"color"})), Number(2));
    EXPECT_EQ(OwnValue(destination, Path({L"fill", L"type"})), Number(4));
}

TEST_F(CopyingProperties, RemovesWhatTheSourceLacks)
{
    destination.SetProperties({Path({L"fill", L"color"})}, &source);

    EXPECT_FALSE(destination.DoesOverridePathProperty(Path({L"fill", L"color"})));
}

TEST_F(CopyingProperties, TakesOwnValuesOfTheSourceAlone)
{
    Style parentOfSource(nullptr, StyleCategoryName);
    parentOfSource.SetPathProperty(Path({L"fill", L"color"}), Number(8));
    source.SetParent(&parentOfSource);

    destination.SetProperties({Path({L"fill", L"color"})}, &source);

    EXPECT_FALSE(destination.DoesOverridePathProperty(Path({L"fill", L"color"})));
}

TEST_F(CopyingProperties, MakesASubstyleOnlyWhereTheSourceHasValuesForIt)
{
    Style bare(nullptr, StyleCategoryName);
    source.SetPathProperty(Path({L"outline", L"width"}), Number(2));

    bare.SetProperties({Path({L"outline", L"width"}), Path({L"fill", L"color"})}, &source);

    EXPECT_EQ(OwnValue(bare, Path({L"outline", L"width"})), Number(2));
    EXPECT_EQ(bare.GetSubstyle(FillStyleCategoryName, false), nullptr);
}

TEST_F(CopyingProperties, TakesASubstyleForAllThatItSets)
{
    destination.SetPathProperty(Path({L"fill", L"type"}), Number(4));
    source.SetPathProperty(Path({L"fill", L"color"}), Number(2));
    source.SetPathProperty(Path({L"fill", L"shade", L"depth"}), Number(5));

    destination.SetProperties({Path({L"fill"})}, &source);

    EXPECT_EQ(OwnValue(destination, Path({L"fill", L"color"})), Number(2));
    EXPECT_EQ(OwnValue(destination, Path({L"fill", L"type"})), Nothing());
    EXPECT_EQ(OwnValue(destination, Path({L"fill", L"shade", L"depth"})), Number(5));
}

TEST_F(CopyingProperties, EmptiesASubstyleThatTheSourceLacksAndKeepsIt)
{
    Style* const fill = destination.GetSubstyle(FillStyleCategoryName, false);

    destination.SetProperties({Path({L"fill"})}, &source);

    EXPECT_EQ(destination.GetSubstyle(FillStyleCategoryName, false), fill);
    EXPECT_EQ(fill->GetOwnPropertyCount(), 0U);
}

TEST_F(CopyingProperties, LeavesParentOwnerAndCategoryOfASubstyleAsTheyAre)
{
    Style& fillOnly = *host->AddNamedStyle(FillStyleCategoryName, L"Fill only");
    Style& fill = Part(destination, FillStyleCategoryName);
    fill.SetParent(&fillOnly);
    source.GetSubstyleAndCreateIfMissing(FillStyleCategoryName, Key(L"another"));
    source.SetPathProperty(Path({L"fill", L"color"}), Number(2));

    destination.SetProperties({Path({L"fill"})}, &source);

    EXPECT_EQ(fill.GetParent(), &fillOnly);
    EXPECT_EQ(fill.GetOwner(), &destination);
    EXPECT_EQ(fill.GetCategoryName(), FillStyleCategoryName);
}

TEST_F(CopyingProperties, OfASingleCategoryGoesByKeysAlone)
{
    Style& fill = Part(destination, FillStyleCategoryName);

    fill.SetProperties({Path({L"color"}), Path({L"type"})}, Change(FillStyleCategoryName, L"type", 3).get());

    EXPECT_EQ(OwnValue(fill, Path({L"color"})), Nothing());
    EXPECT_EQ(OwnValue(fill, Path({L"type"})), Number(3));
}

TEST_F(CopyingProperties, PassesOverEmptyPaths)
{
    source.SetPathProperty(Path({L"fill", L"color"}), Number(2));

    destination.SetProperties({{}, Path({L"fill", L"color"})}, &source);

    EXPECT_EQ(OwnValue(destination, Path({L"fill", L"color"})), Number(2));
}

TEST_F(CopyingProperties, FromNowhereOrFromItselfChangesNothing)
{
    destination.SetProperties({Path({L"fill", L"color"})}, nullptr);
    destination.SetProperties({Path({L"fill", L"color"})}, &destination);

    EXPECT_EQ(OwnValue(destination, Path({L"fill", L"color"})), Number(1));
}

TEST_F(CopyingProperties, LeavesTheSourceAsItIs)
{
    source.SetPathProperty(Path({L"fill", L"color"}), Number(2));

    destination.SetProperties({Path({L"fill", L"color"}), Path({L"fill", L"type"})}, &source);

    EXPECT_EQ(OwnValue(source, Path({L"fill", L"color"})), Number(2));
    EXPECT_EQ(OwnValue(source, Path({L"fill", L"type"})), Nothing());
}

} // namespace HostTests
