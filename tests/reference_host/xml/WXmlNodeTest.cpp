#include "host/xml/WXmlNode.h"

#include "host/xml/WXmlDoc.h"
#include "reference_host/xml/LiveXmlTrees.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

using ReferenceHost::CountLiveXmlTrees;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// A list as panels show them: three entries with the ids 0 to 2.
class NodeList : public ::testing::Test
{
protected:
    NodeList()
    {
        for (int id = 0; id < 3; ++id)
        {
            WXmlNode entry = list.CreateChild(L"itemData");
            entry.Attribute(L"@text").SetString(OvxStringT::Format(L"entry %d", id));
            entry.Attribute(L"@placeholderCommandID").SetInt(id);
        }
    }

    [[nodiscard]] OvxStringT TextOf(const wchar_t* path) const
    {
        return list.GetNode(WXPath(path)).Attribute(L"@text").GetString(L"nothing found");
    }

    WXmlDoc document;
    WXmlNode list = document.CreateNode(L"placeholderData");
};

} // namespace

TEST_F(NodeList, HasItsNameAndItsChildrenInDocumentOrder)
{
    const auto children = list.GetChildren();

    EXPECT_EQ(list.GetName(), OvxStringT(L"placeholderData"));
    ASSERT_EQ(children.size(), 3U);
    EXPECT_EQ(children[0].Attribute(L"@text").GetString(), OvxStringT(L"entry 0"));
    EXPECT_EQ(children[2].Attribute(L"@text").GetString(), OvxStringT(L"entry 2"));
    EXPECT_EQ(children[2].GetName(), OvxStringT(L"itemData"));
}

TEST_F(NodeList, KeepsAttributesInTheOrderInWhichTheyWereWritten)
{
    WXmlNode entry = list.CreateChild(L"itemData");
    entry.Attribute(L"@type").SetString(L"statusText");
    entry.Attribute(L"@check").SetBool(true);
    entry.Attribute(L"@id").SetInt(4);
    entry.Attribute(L"@type").SetString(L"again");

    const auto names = entry.GetAttributeNames();

    EXPECT_THAT(names, ElementsAre(OvxStringT(L"type"), OvxStringT(L"check"), OvxStringT(L"id")));
}

TEST_F(NodeList, FindsAnEntryByItsId)
{
    EXPECT_EQ(TextOf(L"itemData[@placeholderCommandID='2']"), OvxStringT(L"entry 2"));
    EXPECT_EQ(TextOf(L"itemData[@placeholderCommandID='3']"), OvxStringT(L"nothing found"));
}

TEST_F(NodeList, FindsTheFirstOfSeveralInDocumentOrder)
{
    EXPECT_EQ(TextOf(L"itemData"), OvxStringT(L"entry 0"));
    EXPECT_EQ(TextOf(L"itemData[3] | itemData[2]"), OvxStringT(L"entry 1"));
}

TEST_F(NodeList, FindsNothingByAMalformedPath)
{
    EXPECT_FALSE(list.GetNode(WXPath(L"itemData[")).IsValid());
    EXPECT_FALSE(list.GetNode(WXPath(L"")).IsValid());
}

TEST_F(NodeList, FindsNothingByAPathThatAsksForNoElement)
{
    EXPECT_FALSE(list.GetNode(WXPath(L"1 + 1")).IsValid());
    EXPECT_FALSE(list.GetNode(WXPath(L"itemData/@text")).IsValid());
    EXPECT_FALSE(list.GetNode(WXPath(L"..")).IsValid());
}

TEST_F(NodeList, IsTheSameElementThroughEveryHandle)
{
    const WXmlNode found = list.GetNode(WXPath(L"itemData[2]"));

    EXPECT_EQ(found, list.GetChildren()[1]);
    EXPECT_NE(found, list.GetChildren()[0]);
}

TEST_F(NodeList, KeepsTextsBeyondAscii)
{
    WXmlNode entry = list.CreateChild(L"itemData");
    entry.Attribute(L"@text").SetString(L"Füllung & \"Umriß\" <\x4e2d\x1F3A8>");

    const OvxStringT text = entry.Attribute(L"@text").GetString();

    EXPECT_EQ(text, OvxStringT(L"Füllung & \"Umriß\" <\x4e2d\x1F3A8>"));
}

TEST_F(NodeList, MakesNoElementWithoutAName)
{
    const WXmlNode nameless = list.CreateChild(L"");

    EXPECT_FALSE(nameless.IsValid());
    EXPECT_FALSE(document.CreateNode(L"").IsValid());
    EXPECT_EQ(list.GetChildren().size(), 3U);
}

TEST(InvalidNode, AnswersEverythingWithNothing)
{
    WXmlNode node;

    EXPECT_FALSE(node.IsValid());
    EXPECT_TRUE(node.GetName().empty());
    EXPECT_FALSE(node.CreateChild(L"child").IsValid());
    EXPECT_FALSE(node.GetNode(WXPath(L"child")).IsValid());
    EXPECT_THAT(node.GetChildren(), IsEmpty());
    EXPECT_THAT(node.GetAttributeNames(), IsEmpty());
}

TEST(InvalidNode, ForgetsWhatIsWrittenToIt)
{
    const WXmlNode node;

    node.Attribute(L"@text").SetString(L"lost");

    EXPECT_EQ(node.Attribute(L"@text").GetString(L"fallback"), OvxStringT(L"fallback"));
}

TEST(XmlTree, LivesAsLongAsAHandleIntoItDoes)
{
    const std::size_t before = CountLiveXmlTrees();
    WXmlNode child;
    {
        WXmlDoc document;
        child = document.CreateNode(L"list").CreateChild(L"entry");
    }

    EXPECT_EQ(CountLiveXmlTrees(), before + 1);
    EXPECT_EQ(child.GetName(), OvxStringT(L"entry"));
}

TEST(XmlTree, IsGoneWithItsLastHandle)
{
    const std::size_t before = CountLiveXmlTrees();
    WXmlDoc document;
    WXmlNode list = document.CreateNode(L"list");
    WXmlValueAccessor value = list.Attribute(L"@name");

    list = WXmlNode();
    const std::size_t whileAccessed = CountLiveXmlTrees();
    value = WXmlNode().Attribute(L"@name");

    EXPECT_EQ(whileAccessed, before + 1);
    EXPECT_EQ(CountLiveXmlTrees(), before);
}

TEST(XmlTree, IsOneForEachListHoweverManyWereMade)
{
    const std::size_t before = CountLiveXmlTrees();
    WXmlDoc document;
    WXmlNode list;

    for (int i = 0; i < 10000; ++i)
        list = document.CreateNode(L"list");

    EXPECT_EQ(CountLiveXmlTrees(), before + 1);
}
