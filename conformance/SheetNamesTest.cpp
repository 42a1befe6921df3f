#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/StyleSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(SheetNamesTest);

// The named styles of the document, and its default styles.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;
using Styles::StyleSheet;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::NotNull;

namespace
{

/// A sheet with two whole styles and two fills, in turn.
class Sheet : public HostTest
{
protected:
    void SetUp() override { ASSERT_NE(GetSource().GetStyleSheet(), nullptr); }

    [[nodiscard]] StyleSheet& GetSheet() const { return *GetSource().GetStyleSheet(); }

    Style* const zebra = host->AddNamedStyle(StyleCategoryName, L"Zebra");
    Style* const red = host->AddNamedStyle(FillStyleCategoryName, L"Red");
    Style* const antelope = host->AddNamedStyle(StyleCategoryName, L"Antelope");
    Style* const blue = host->AddNamedStyle(FillStyleCategoryName, L"Blue");
};

} // namespace

TEST_F(Sheet, ListsTheNamesOfOneCategoryInItsOrder)
{
    EXPECT_THAT(GetSheet().GetStyleNames(StyleCategoryName),
                ElementsAre(OvxStringT(L"Zebra"), OvxStringT(L"Antelope")));
    EXPECT_THAT(GetSheet().GetStyleNames(FillStyleCategoryName),
                ElementsAre(OvxStringT(L"Red"), OvxStringT(L"Blue")));
    EXPECT_THAT(GetSheet().GetStyleNames(Styles::OutlineStyleCategoryName), IsEmpty());
}

TEST_F(Sheet, FindsAStyleByItsExactName)
{
    EXPECT_EQ(GetSheet().GetStyle(L"Zebra"), zebra);
    EXPECT_EQ(GetSheet().GetStyle(L"Blue"), blue);
    EXPECT_EQ(GetSheet().GetStyle(L"zebra"), nullptr);
    EXPECT_EQ(GetSheet().GetStyle(L"no such style"), nullptr);
    EXPECT_EQ(GetSheet().GetStyle(L""), nullptr);
}

TEST_F(Sheet, KnowsTheNamesOfItsStylesAlone)
{
    const Style stranger(nullptr, StyleCategoryName);

    EXPECT_EQ(GetSheet().GetStyleName(antelope), L"Antelope");
    EXPECT_EQ(GetSheet().GetStyleName(red), L"Red");
    EXPECT_EQ(GetSheet().GetStyleName(nullptr), L"");
    EXPECT_EQ(GetSheet().GetStyleName(&stranger), L"");
    EXPECT_EQ(GetSheet().GetStyleName(host->AddObject().style), L"");
    EXPECT_EQ(GetSheet().GetStyleName(&Part(*zebra, FillStyleCategoryName)), L"");
}

TEST_F(Sheet, ProposesTheBaseItselfWhereItIsFree)
{
    EXPECT_EQ(GetSheet().GetUnusedStyleName(L"fill"), L"fill");
}

TEST_F(Sheet, ProposesANewNameWhereTheBaseIsTaken)
{
    host->AddNamedStyle(FillStyleCategoryName, L"fill");

    const OvxStringT proposed = GetSheet().GetUnusedStyleName(L"fill");

    EXPECT_FALSE(proposed.empty());
    EXPECT_EQ(GetSheet().GetStyle(proposed), nullptr);
}

TEST_F(Sheet, ProposesTheSameNameUntilItIsTaken)
{
    host->AddNamedStyle(FillStyleCategoryName, L"fill");

    const OvxStringT proposed = GetSheet().GetUnusedStyleName(L"fill");
    EXPECT_EQ(GetSheet().GetUnusedStyleName(L"fill"), proposed);

    host->AddNamedStyle(FillStyleCategoryName, proposed);
    EXPECT_NE(GetSheet().GetUnusedStyleName(L"fill"), proposed);
}

TEST_F(Sheet, KeepsTheAddressesOfItsStylesWhileOthersCome)
{
    for (int i = 0; i < 50; ++i)
        host->AddNamedStyle(StyleCategoryName, OvxStringT::Format(L"Style %d", i));

    EXPECT_EQ(GetSheet().GetStyle(L"Zebra"), zebra);
    EXPECT_EQ(GetSheet().GetStyleName(zebra), L"Zebra");
}

TEST_F(Sheet, OutsideTheDocumentIsFoundOnlyByItsName)
{
    EXPECT_EQ(GetSource().GetExternalStyleSheet(L"no such sheet"), nullptr);
    EXPECT_EQ(GetSource().GetExternalStyleSheet(L""), nullptr);
}

TEST_F(Sheet, HoldsNoDefaultStyles)
{
    EXPECT_THAT(GetSource().GetDefaultStyles(), Each(NotNull()));
    for (const Style* const defaults : GetSource().GetDefaultStyles())
        EXPECT_EQ(GetSheet().GetStyleName(defaults), L"");
}

TEST_F(Sheet, GivesDefaultStylesASubstyleForEachCategory)
{
    for (Style* const defaults : GetSource().GetDefaultStyles())
    {
        Style* const fill =
            defaults->GetSubstyleAndCreateIfMissing(FillStyleCategoryName, FillStyleCategoryName);
        ASSERT_NE(fill, nullptr);
        EXPECT_EQ(fill->GetCategoryName(), FillStyleCategoryName);
    }
}

} // namespace HostTests
