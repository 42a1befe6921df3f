#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"

#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(WrittenValuesTest);

// One value at a time, into styles of the document and into those that stand by themselves.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

class WrittenValue : public HostTest
{
protected:
    WrittenValue() { style.SetParent(&parent); }

    Style& parent = *host->AddNamedStyle(FillStyleCategoryName, L"Parent");
    Style& style = *host->AddNamedStyle(FillStyleCategoryName, L"Child");
};

} // namespace

TEST_F(WrittenValue, BecomesAnOwnOneAlsoWhenItIsInEffectAlready)
{
    parent.SetProperty(Key(L"color"), Number(1));
    ASSERT_FALSE(style.DoesOverridePathProperty(Path({L"color"})));

    style.SetProperty(Key(L"color"), Number(1));

    EXPECT_TRUE(style.DoesOverridePathProperty(Path({L"color"})));
}

TEST_F(WrittenValue, TakesThePlaceOfAnotherOfAnyType)
{
    style.SetProperty(Key(L"color"), Number(1));

    style.SetProperty(Key(L"color"), OvxUtils::Any(OvxStringT(L"red")));

    EXPECT_EQ(style.GetProperty(Key(L"color")), OvxUtils::Any(OvxStringT(L"red")));
    EXPECT_EQ(style.GetOwnPropertyCount(), 1U);
}

TEST_F(WrittenValue, ThatIsEmptyRemovesTheOwnOne)
{
    parent.SetProperty(Key(L"color"), Number(1));
    style.SetProperty(Key(L"color"), Number(2));

    style.SetProperty(Key(L"color"), Nothing());

    EXPECT_FALSE(style.DoesOverridePathProperty(Path({L"color"})));
    EXPECT_EQ(style.GetProperty(Key(L"color")), Number(1));
}

TEST_F(WrittenValue, LeavesTheParentAsItIs)
{
    parent.SetProperty(Key(L"color"), Number(1));

    style.SetProperty(Key(L"color"), Number(2));

    EXPECT_EQ(parent.GetProperty(Key(L"color")), Number(1));
}

TEST_F(WrittenValue, AtAPathMakesTheSubstylesOnTheWay)
{
    Style whole(nullptr, StyleCategoryName);

    whole.SetPathProperty(Path({L"fill", L"shade", L"depth"}), Number(1));

    const Style* const fill = whole.GetSubstyle(FillStyleCategoryName, true);
    ASSERT_NE(fill, nullptr);
    EXPECT_EQ(fill->GetCategoryName(), FillStyleCategoryName);
    ASSERT_NE(fill->GetSubstyle(Key(L"shade"), true), nullptr);
    EXPECT_EQ(fill->GetSubstyle(Key(L"shade"), true)->GetProperty(Key(L"depth")), Number(1));
}

TEST_F(WrittenValue, AtAPathThatIsEmptyRemovesAndMakesNothing)
{
    Style whole(nullptr, StyleCategoryName);
    whole.SetPathProperty(Path({L"fill", L"color"}), Number(1));

    whole.SetPathProperty(Path({L"fill", L"color"}), Nothing());
    whole.SetPathProperty(Path({L"outline", L"color"}), Nothing());

    EXPECT_FALSE(whole.DoesOverridePathProperty(Path({L"fill", L"color"})));
    EXPECT_EQ(whole.GetSubstyle(Styles::OutlineStyleCategoryName, false), nullptr);
}

TEST_F(WrittenValue, AtAnEmptyPathChangesNothing)
{
    style.SetPathProperty({}, Number(1));

    EXPECT_TRUE(style.IsEmpty());
}

TEST_F(WrittenValue, AtAPathOfOneKeyIsAPropertyOfTheStyleItself)
{
    style.SetPathProperty(Path({L"color"}), Number(1));

    EXPECT_EQ(style.GetProperty(Key(L"color")), Number(1));
    EXPECT_EQ(style.GetOwnPropertyCount(), 1U);
}

TEST_F(WrittenValue, CountsOnceAndWithoutThoseOfSubstyles)
{
    Style whole(nullptr, StyleCategoryName);
    whole.SetProperty(Key(L"opacity"), Number(1));
    whole.SetProperty(Key(L"opacity"), Number(2));
    whole.SetPathProperty(Path({L"fill", L"color"}), Number(1));

    EXPECT_EQ(whole.GetOwnPropertyCount(), 1U);
}

} // namespace HostTests
