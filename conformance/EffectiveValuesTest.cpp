#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"

#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(EffectiveValuesTest);

// Where an effective value comes from.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

/// A small document: a base style, a named style that inherits from it, and an object of that style.
class EffectiveValue : public HostTest
{
protected:
    EffectiveValue()
    {
        named.SetParent(&base);
        object.SetParent(&named);
    }

    /// What the whole style's fill sets.
    static void SetInFill(Style& whole, const wchar_t* key, int value)
    {
        Part(whole, FillStyleCategoryName).SetProperty(Key(key), Number(value));
    }

    Style& base = *host->AddNamedStyle(StyleCategoryName, L"Base");
    Style& named = *host->AddNamedStyle(StyleCategoryName, L"Named");
    Style& object = *host->AddObject().style;
    Style& fill = Part(object, FillStyleCategoryName);
};

} // namespace

TEST_F(EffectiveValue, IsTheOwnOneWhereThereIsOne)
{
    SetInFill(object, L"color", 1);
    SetInFill(named, L"color", 2);

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
}

TEST_F(EffectiveValue, OfAWholeStyleIsThatOfItsNearestParentWithOne)
{
    base.SetProperty(Key(L"opacity"), Number(3));
    EXPECT_EQ(object.GetProperty(Key(L"opacity")), Number(3));

    named.SetProperty(Key(L"opacity"), Number(2));
    EXPECT_EQ(object.GetProperty(Key(L"opacity")), Number(2));
}

TEST_F(EffectiveValue, OfASubstyleIsThatInTheNearestParentOfTheOwner)
{
    SetInFill(base, L"color", 3);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(3));

    SetInFill(named, L"color", 2);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(2));
}

TEST_F(EffectiveValue, OfASubstyleIsThatOfItsOwnParentBeforeThoseOfTheOwner)
{
    Style& fillOnly = *host->AddNamedStyle(FillStyleCategoryName, L"Fill only");
    fillOnly.SetProperty(Key(L"color"), Number(1));
    SetInFill(named, L"color", 2);
    SetInFill(named, L"type", 4);

    fill.SetParent(&fillOnly);

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
    EXPECT_EQ(fill.GetProperty(Key(L"type")), Number(4));
}

TEST_F(EffectiveValue, OfASubstyleIsThatOfTheParentsOfItsCounterpart)
{
    Style& fillOnly = *host->AddNamedStyle(FillStyleCategoryName, L"Fill only");
    fillOnly.SetProperty(Key(L"color"), Number(1));
    Part(named, FillStyleCategoryName).SetParent(&fillOnly);
    SetInFill(base, L"color", 2);

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
}

TEST_F(EffectiveValue, OfASubstyleWithinASubstyleIsLookedForOutwards)
{
    Style whole(&named, StyleCategoryName);
    Style* const shade =
        Part(whole, FillStyleCategoryName).GetSubstyleAndCreateIfMissing(Key(L"shade"), Key(L"shade"));
    named.SetPathProperty(Path({L"fill", L"shade", L"depth"}), Number(5));

    EXPECT_EQ(shade->GetProperty(Key(L"depth")), Number(5));
}

TEST_F(EffectiveValue, AtAPathIsLookedForWhereTheStyleInherits)
{
    SetInFill(base, L"color", 3);
    const Style withoutSubstyles(&named, StyleCategoryName);

    EXPECT_EQ(withoutSubstyles.GetPathProperty(Path({L"fill", L"color"})), Number(3));
}

TEST_F(EffectiveValue, AtAPathFollowsTheParentsOfEachSubstyleOnTheWay)
{
    Style& fillOnly = *host->AddNamedStyle(FillStyleCategoryName, L"Fill only");
    fillOnly.SetPathProperty(Path({L"shade", L"depth"}), Number(6));

    fill.SetParent(&fillOnly);

    EXPECT_EQ(object.GetPathProperty(Path({L"fill", L"shade", L"depth"})), Number(6));
    EXPECT_EQ(fill.GetPathProperty(Path({L"shade", L"depth"})), Number(6));
}

TEST_F(EffectiveValue, AtAPathIsThatOfTheSubstyle)
{
    SetInFill(object, L"color", 1);

    EXPECT_EQ(object.GetPathProperty(Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(object.GetPathProperty(Path({L"outline", L"color"})), Nothing());
}

TEST_F(EffectiveValue, FallsBackToTheDefaultsBehindAllParents)
{
    if (GetSource().GetDefaultStyles().empty())
        GTEST_SKIP() << "the document has no default styles";
    Style& defaults = *GetSource().GetDefaultStyles().front();
    SetInFill(defaults, L"color", 9);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(9));

    SetInFill(base, L"color", 3);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(3));
}

TEST_F(EffectiveValue, IsNothingWhereNobodySetsIt)
{
    EXPECT_TRUE(fill.GetProperty(Key(L"color")).IsEmpty());
    EXPECT_TRUE(object.GetPathProperty({}).IsEmpty());
}

TEST_F(EffectiveValue, FollowsWhatIsWrittenLater)
{
    SetInFill(named, L"color", 2);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(2));

    SetInFill(named, L"color", 7);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(7));

    object.SetParent(&base);
    EXPECT_TRUE(fill.GetProperty(Key(L"color")).IsEmpty());
}

TEST_F(EffectiveValue, StaysReadableWhileOthersAreRead)
{
    SetInFill(named, L"color", 1);
    SetInFill(base, L"type", 2);

    const OvxUtils::Any& color = fill.GetProperty(Key(L"color"));
    const OvxUtils::Any& type = object.GetPathProperty(Path({L"fill", L"type"}));
    const OvxUtils::Any& width = fill.GetProperty(Key(L"width"));

    EXPECT_EQ(color, Number(1));
    EXPECT_EQ(type, Number(2));
    EXPECT_EQ(width, Nothing());
}

TEST_F(EffectiveValue, KeepsItsTypeAndNotJustItsLook)
{
    const OvxUtils::Any text{OvxStringT(L"solid")};
    const OvxUtils::Any key{Key(L"solid")};

    Part(named, FillStyleCategoryName).SetProperty(Key(L"type"), key);

    EXPECT_EQ(fill.GetProperty(Key(L"type")), key);
    EXPECT_FALSE(fill.GetProperty(Key(L"type")) == text);
}

} // namespace HostTests
