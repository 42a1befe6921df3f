#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/StyleSheet.h"

#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(ExternalStylesTest);

// Styles of sheets outside the document, where a host has them.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

class ExternalStyle : public HostTest
{
protected:
    void SetUp() override
    {
        if (external == nullptr)
            GTEST_SKIP() << "the host has no sheets outside the document";
    }

    Style* const external = host->AddExternalStyle(L"Corporate", L"corporate.sheet");
};

} // namespace

TEST_F(ExternalStyle, KnowsItsSheetAndItsLink)
{
    EXPECT_TRUE(external->IsExternal());
    EXPECT_EQ(external->GetExternalStyleSheetName(), L"Corporate");
    EXPECT_EQ(external->GetExternalLink(), L"corporate.sheet");
}

TEST_F(ExternalStyle, HasSubstylesThatAreExternalToo)
{
    const Style& fill = Part(*external, FillStyleCategoryName);

    EXPECT_TRUE(fill.IsExternal());
    EXPECT_EQ(fill.GetExternalStyleSheetName(), L"Corporate");
    EXPECT_EQ(fill.GetExternalLink(), L"corporate.sheet");
}

TEST_F(ExternalStyle, HasCopiesThatAreNot)
{
    const Style copy(*external);

    EXPECT_FALSE(copy.IsExternal());
    EXPECT_EQ(copy.GetExternalStyleSheetName(), L"");
    EXPECT_EQ(copy.GetExternalLink(), L"");
}

TEST_F(ExternalStyle, CanBeInheritedFrom)
{
    Part(*external, FillStyleCategoryName).SetProperty(Key(L"color"), Number(6));
    Style& object = *host->AddObject().style;

    object.SetParent(external);

    EXPECT_EQ(Part(object, FillStyleCategoryName).GetProperty(Key(L"color")), Number(6));
    EXPECT_FALSE(object.IsExternal());
}

TEST_F(ExternalStyle, HasNoNameInTheSheetOfTheDocument)
{
    EXPECT_EQ(GetSource().GetStyleSheet()->GetStyleName(external), L"");
}

// What every host says of its other styles.
using DocumentStyle = HostTest;

TEST_F(DocumentStyle, IsNotExternal)
{
    Style& named = *host->AddNamedStyle(StyleCategoryName, L"Named");

    for (const Style* const style : {&named, host->AddObject().style, &Part(named, FillStyleCategoryName)})
    {
        EXPECT_FALSE(style->IsExternal());
        EXPECT_EQ(style->GetExternalStyleSheetName(), L"");
        EXPECT_EQ(style->GetExternalLink(), L"");
    }
}

} // namespace HostTests
