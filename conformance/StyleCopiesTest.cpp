#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/StyleSheet.h"

#include <gtest/gtest.h>

#include <memory>

HOST_TESTS_SUBJECT(StyleCopiesTest);

// Copies and assignment.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

class StyleCopy : public HostTest
{
protected:
    StyleCopy()
    {
        style.SetParent(&parent);
        style.SetPathProperty(Path({L"fill", L"color"}), Number(1));
        style.SetProperty(Key(L"opacity"), Number(2));
    }

    [[nodiscard]] OvxStringT NameOf(const Style& named) const
    {
        return GetSource().GetStyleSheet()->GetStyleName(&named);
    }

    Style& parent = *host->AddNamedStyle(StyleCategoryName, L"Parent");
    Style& style = *host->AddNamedStyle(StyleCategoryName, L"Original");
};

/// An assignment to a style of the sheet.
class StyleAssignment : public StyleCopy
{
protected:
    Style& other = *host->AddNamedStyle(StyleCategoryName, L"Other");
};

} // namespace

TEST_F(StyleCopy, HasTheValuesTheCategoryAndTheParentOfItsOriginal)
{
    const Style copy(style);

    EXPECT_EQ(OwnValue(copy, Path({L"opacity"})), Number(2));
    EXPECT_EQ(OwnValue(copy, Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(copy.GetCategoryName(), StyleCategoryName);
    EXPECT_EQ(copy.GetParent(), &parent);
}

TEST_F(StyleCopy, HasSubstylesOfItsOwn)
{
    Style copy(style);
    Style& fill = Part(copy, FillStyleCategoryName);

    fill.SetProperty(Key(L"color"), Number(7));

    EXPECT_NE(&fill, style.GetSubstyle(FillStyleCategoryName, false));
    EXPECT_EQ(fill.GetOwner(), &copy);
    EXPECT_EQ(OwnValue(style, Path({L"fill", L"color"})), Number(1));
}

TEST_F(StyleCopy, LosesNothingWhenItsOriginalChanges)
{
    const Style copy(style);

    style.SetPathProperty(Path({L"fill", L"color"}), Nothing());
    style.SetProperty(Key(L"opacity"), Number(9));

    EXPECT_EQ(OwnValue(copy, Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(OwnValue(copy, Path({L"opacity"})), Number(2));
}

TEST_F(StyleCopy, OfASubstyleHasNoOwner)
{
    const Style copy(Part(style, FillStyleCategoryName));

    EXPECT_EQ(copy.GetOwner(), nullptr);
    EXPECT_EQ(OwnValue(copy, Path({L"color"})), Number(1));
}

TEST_F(StyleCopy, HasNoNameInTheSheet)
{
    const Style copy(style);

    EXPECT_EQ(NameOf(copy), L"");
    EXPECT_EQ(NameOf(style), L"Original");
}

TEST_F(StyleCopy, LeavesNoStyleBehind)
{
    const auto before = host->CountLiveStyles();
    if (!before)
        GTEST_SKIP() << "the host does not count styles";
    {
        const Style copy(style);
        ASSERT_GT(host->CountLiveStyles(), before);
    }
    EXPECT_EQ(host->CountLiveStyles(), before);
}

TEST_F(StyleAssignment, TakesOverValuesCategoryAndParent)
{
    other = style;

    EXPECT_EQ(OwnValue(other, Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(OwnValue(other, Path({L"opacity"})), Number(2));
    EXPECT_EQ(other.GetParent(), &parent);
}

TEST_F(StyleAssignment, TakesOverAnotherCategoryToo)
{
    Style assigned(nullptr, StyleCategoryName);

    assigned = Part(style, FillStyleCategoryName);

    EXPECT_EQ(assigned.GetCategoryName(), FillStyleCategoryName);
    EXPECT_EQ(OwnValue(assigned, Path({L"color"})), Number(1));
}

TEST_F(StyleAssignment, ForgetsWhatWasSetBefore)
{
    other.SetPathProperty(Path({L"outline", L"width"}), Number(4));
    other.SetProperty(Key(L"shadow"), Number(5));

    other = style;

    EXPECT_EQ(OwnValue(other, Path({L"outline", L"width"})), Nothing());
    EXPECT_EQ(OwnValue(other, Path({L"shadow"})), Nothing());
}

TEST_F(StyleAssignment, LeavesTheStyleWhereItIs)
{
    Style& fill = Part(other, FillStyleCategoryName);

    fill = *Change(FillStyleCategoryName, L"color", 3);
    EXPECT_EQ(fill.GetOwner(), &other);
    EXPECT_EQ(OwnValue(other, Path({L"fill", L"color"})), Number(3));

    other = style;
    EXPECT_EQ(NameOf(other), L"Other");
    EXPECT_EQ(NameOf(style), L"Original");
}

TEST_F(StyleAssignment, MakesCopiesOfSubstyles)
{
    other = style;

    Part(other, FillStyleCategoryName).SetProperty(Key(L"color"), Number(7));

    EXPECT_EQ(OwnValue(style, Path({L"fill", L"color"})), Number(1));
}

TEST_F(StyleAssignment, KeepsTheParentWhereTheOthersWouldCloseACycle)
{
    style.SetParent(&other);

    other = style;

    EXPECT_EQ(other.GetParent(), nullptr);
    EXPECT_EQ(OwnValue(other, Path({L"opacity"})), Number(2));
}

TEST_F(StyleAssignment, ToItselfChangesNothing)
{
    const Style& same = style;

    style = same;

    EXPECT_EQ(OwnValue(style, Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(style.GetParent(), &parent);
}

} // namespace HostTests
