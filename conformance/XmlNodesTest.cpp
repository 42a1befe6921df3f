#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/xml/WXPath.h"
#include "host/xml/WXmlDoc.h"
#include "host/xml/WXmlNode.h"
#include "host/xml/WXmlValueAccessor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

HOST_TESTS_SUBJECT(XmlNodesTest);

// The lists of styles that panels show are such nodes.
namespace HostTests
{

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Adds an entry as the library writes one.
WXmlNode AddEntry(WXmlNode& list, int id, const wchar_t* text)
{
    WXmlNode entry = list.CreateChild(L"itemData");
    entry.Attribute(L"@type").SetString(L"statusText");
    entry.Attribute(L"@text").SetString(text);
    entry.Attribute(L"@check").SetBool(id == 1);
    entry.Attribute(L"@guid").SetString(L"");
    entry.Attribute(L"@placeholderCommandID").SetInt(id);
    return entry;
}

/// A list of two entries.
class XmlNode : public testing::Test
{
protected:
    WXmlDoc document;
    WXmlNode list = document.CreateNode(L"placeholderData");
    WXmlNode first = AddEntry(list, 1, L"Base");
    WXmlNode second = AddEntry(list, 12, L"Mid && One");
};

} // namespace

TEST_F(XmlNode, HasItsNameAndItsChildrenInOrder)
{
    EXPECT_EQ(list.GetName(), L"placeholderData");
    EXPECT_EQ(first.GetName(), L"itemData");
    EXPECT_THAT(list.GetChildren(), ElementsAre(first, second));
    EXPECT_THAT(first.GetChildren(), IsEmpty());
}

TEST_F(XmlNode, KeepsItsAttributesInTheOrderInWhichTheyWereWritten)
{
    EXPECT_THAT(first.GetAttributeNames(),
                ElementsAre(OvxStringT(L"type"), OvxStringT(L"text"), OvxStringT(L"check"),
                            OvxStringT(L"guid"), OvxStringT(L"placeholderCommandID")));
}

TEST_F(XmlNode, KeepsThePlaceOfAnAttributeThatIsWrittenAgain)
{
    first.Attribute(L"@text").SetString(L"Other");

    EXPECT_EQ(first.GetAttributeNames()[1], L"text");
    EXPECT_EQ(first.Attribute(L"@text").GetString(), L"Other");
    EXPECT_EQ(first.GetAttributeNames().size(), 5U);
}

TEST_F(XmlNode, IsFoundByTheValueOfAnAttribute)
{
    EXPECT_EQ(list.GetNode(WXPath(L"itemData[@placeholderCommandID='12']")), second);
    EXPECT_EQ(list.GetNode(WXPath(L"itemData[@placeholderCommandID='1']")), first);
    EXPECT_EQ(list.GetNode(WXPath(L"itemData")), first);
}

TEST_F(XmlNode, ThatIsNotThereIsInvalid)
{
    EXPECT_FALSE(list.GetNode(WXPath(L"itemData[@placeholderCommandID='2']")).IsValid());
    EXPECT_FALSE(list.GetNode(WXPath(L"another[@placeholderCommandID='1']")).IsValid());
    EXPECT_FALSE(list.GetNode(WXPath(L"itemData[@placeholder")).IsValid());
}

TEST_F(XmlNode, IsTheSameThroughEveryHandle)
{
    const WXmlNode copy = first;

    first.Attribute(L"@text").SetString(L"Other");

    EXPECT_EQ(copy.Attribute(L"@text").GetString(), L"Other");
    EXPECT_EQ(copy, first);
    EXPECT_FALSE(first == second);
}

TEST_F(XmlNode, LivesAsLongAsAHandleToItsList)
{
    WXmlNode entry;
    {
        auto shortLived = std::make_unique<WXmlDoc>();
        WXmlNode root = shortLived->CreateNode(L"placeholderData");
        AddEntry(root, 1, L"Base");
        entry = AddEntry(root, 2, L"Child");
    }

    EXPECT_EQ(entry.Attribute(L"@text").GetString(), L"Child");
    EXPECT_EQ(entry.GetName(), L"itemData");
}

TEST_F(XmlNode, LosesNothingWhenAnotherListIsMade)
{
    WXmlNode another = document.CreateNode(L"placeholderData");
    AddEntry(another, 1, L"Other");

    EXPECT_EQ(list.GetChildren().size(), 2U);
    EXPECT_EQ(another.GetChildren().size(), 1U);
    EXPECT_FALSE(another == list);
}

TEST_F(XmlNode, KeepsTextsBeyondAsciiAndWhatMarkupIsMadeOf)
{
    const OvxStringT text = L"Gr\u00fc\u00dfe & <\"b\"> \u65e5\u672c";

    first.Attribute(L"@text").SetString(text);

    EXPECT_EQ(first.Attribute(L"@text").GetString(), text);
}

TEST_F(XmlNode, HasAnEmptyAttributeForAnEmptyText)
{
    EXPECT_THAT(first.GetAttributeNames(), testing::Contains(OvxStringT(L"guid")));
    EXPECT_EQ(first.Attribute(L"@guid").GetString(L"fallback"), L"");
}

TEST_F(XmlNode, LeavesOutATextThatEqualsItsFallback)
{
    WXmlNode node = document.CreateNode(L"node");

    node.Attribute(L"@a").SetString(L"same", L"same");
    node.Attribute(L"@b").SetString(L"other", L"same");

    EXPECT_THAT(node.GetAttributeNames(), ElementsAre(OvxStringT(L"b")));
}

TEST_F(XmlNode, WritesTruthAndNumbersAsText)
{
    EXPECT_EQ(first.Attribute(L"@check").GetString(), L"true");
    EXPECT_EQ(second.Attribute(L"@check").GetString(), L"false");
    EXPECT_EQ(second.Attribute(L"@placeholderCommandID").GetString(), L"12");
}

TEST_F(XmlNode, ReadsTruthAndNumbersBack)
{
    first.Attribute(L"@offset").SetInt(-7);

    EXPECT_TRUE(first.Attribute(L"@check").GetBool());
    EXPECT_FALSE(second.Attribute(L"@check").GetBool(true));
    EXPECT_EQ(first.Attribute(L"@offset").GetInt(), -7);
}

TEST_F(XmlNode, GivesTheFallbackForWhatIsAbsentOrReadsAsSomethingElse)
{
    first.Attribute(L"@size").SetString(L"12 mm");

    EXPECT_EQ(first.Attribute(L"@absent").GetString(L"fallback"), L"fallback");
    EXPECT_EQ(first.Attribute(L"@absent").GetInt(5), 5);
    EXPECT_TRUE(first.Attribute(L"@absent").GetBool(true));
    EXPECT_EQ(first.Attribute(L"@text").GetInt(5), 5);
    EXPECT_EQ(first.Attribute(L"@size").GetInt(5), 5);
    EXPECT_TRUE(first.Attribute(L"@text").GetBool(true));
}

TEST(InvalidXmlNode, AnswersWithNothing)
{
    const WXmlNode invalid;

    EXPECT_FALSE(invalid.IsValid());
    EXPECT_EQ(invalid.GetName(), L"");
    EXPECT_THAT(invalid.GetChildren(), IsEmpty());
    EXPECT_THAT(invalid.GetAttributeNames(), IsEmpty());
    EXPECT_FALSE(invalid.GetNode(WXPath(L"itemData")).IsValid());
    EXPECT_EQ(invalid.Attribute(L"@text").GetString(L"fallback"), L"fallback");
    EXPECT_EQ(invalid, WXmlNode());
}

TEST(InvalidXmlNode, ForgetsWhatIsWrittenToIt)
{
    WXmlNode invalid;

    invalid.Attribute(L"@text").SetString(L"text");

    EXPECT_FALSE(invalid.CreateChild(L"itemData").IsValid());
    EXPECT_EQ(invalid.Attribute(L"@text").GetString(), L"");
}

TEST(XmlText, IsLoadedAsOneElement)
{
    WXmlDoc document;

    EXPECT_TRUE(document.Load(L"<Panel kind='fill'><row/></Panel>"));

    EXPECT_EQ(document.GetRoot().GetName(), L"Panel");
    EXPECT_EQ(document.GetRoot().Attribute(L"@kind").GetString(), L"fill");
    EXPECT_EQ(document.GetRoot().GetChildren().size(), 1U);
}

TEST(XmlText, ThatIsMalformedLeavesNothing)
{
    WXmlDoc document;
    ASSERT_TRUE(document.Load(L"<Panel/>"));

    EXPECT_FALSE(document.Load(L"<Panel>"));

    EXPECT_FALSE(document.GetRoot().IsValid());
    EXPECT_FALSE(WXmlDoc().GetRoot().IsValid());
}

} // namespace HostTests
