#include "host/xml/WXmlValueAccessor.h"

#include "host/xml/WXmlDoc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class XmlValue : public ::testing::Test
{
protected:
    /// What the attribute holds as text; "absent" when it is not there.
    [[nodiscard]] OvxStringT Written() const { return node.Attribute(L"@value").GetString(L"absent"); }

    WXmlNode node = WXmlDoc().CreateNode(L"node");
    WXmlValueAccessor value = node.Attribute(L"@value");
};

} // namespace

TEST_F(XmlValue, IsWrittenAsAnAttribute)
{
    value.SetString(L"text");

    EXPECT_THAT(node.GetAttributeNames(), ElementsAre(OvxStringT(L"value")));
    EXPECT_EQ(Written(), OvxStringT(L"text"));
}

TEST_F(XmlValue, IsWrittenEmptyWhenTextAndFallbackAreEmpty)
{
    value.SetString(L"", L"");

    EXPECT_EQ(Written(), OvxStringT());
}

TEST_F(XmlValue, IsLeftOutWhenItEqualsAFallback)
{
    value.SetString(L"text");

    value.SetString(L"usual", L"usual");

    EXPECT_THAT(node.GetAttributeNames(), IsEmpty());
}

TEST_F(XmlValue, IsWrittenWhenItDiffersFromTheFallback)
{
    value.SetString(L"", L"usual");

    EXPECT_EQ(Written(), OvxStringT());
}

TEST_F(XmlValue, IsWrittenAsTrueAndFalse)
{
    value.SetBool(true);
    const OvxStringT writtenTrue = Written();
    value.SetBool(false);

    EXPECT_EQ(writtenTrue, OvxStringT(L"true"));
    EXPECT_EQ(Written(), OvxStringT(L"false"));
}

TEST_F(XmlValue, IsReadAsTrueAndFalse)
{
    value.SetString(L"true");
    const bool readTrue = value.GetBool(false);
    value.SetString(L"false");

    EXPECT_TRUE(readTrue);
    EXPECT_FALSE(value.GetBool(true));
}

TEST_F(XmlValue, ThatIsNoBooleanReadsAsTheFallback)
{
    value.SetString(L"1");

    EXPECT_TRUE(value.GetBool(true));
    EXPECT_FALSE(value.GetBool());
}

TEST_F(XmlValue, IsWrittenAndReadAsANumber)
{
    value.SetInt(INT_MIN);

    EXPECT_EQ(Written(), OvxStringT(L"-2147483648"));
    EXPECT_EQ(value.GetInt(), INT_MIN);
}

TEST_F(XmlValue, ThatIsNoNumberReadsAsTheFallback)
{
    for (const wchar_t* text : {L"", L"12 px", L"2147483648", L" 3", L"1.5"})
    {
        value.SetString(text);

        EXPECT_EQ(value.GetInt(-7), -7) << OvxStringT(text).size();
    }
}

TEST_F(XmlValue, ThatIsAbsentReadsAsTheFallback)
{
    EXPECT_EQ(value.GetString(L"fallback"), OvxStringT(L"fallback"));
    EXPECT_TRUE(value.GetBool(true));
    EXPECT_EQ(value.GetInt(9), 9);
}

TEST_F(XmlValue, WithoutAnAttributesAddressIsNeitherWrittenNorRead)
{
    node.Attribute(L"value").SetString(L"text");
    node.Attribute(L"@").SetString(L"text");

    EXPECT_THAT(node.GetAttributeNames(), IsEmpty());
    EXPECT_EQ(node.Attribute(L"value").GetString(L"fallback"), OvxStringT(L"fallback"));
}
