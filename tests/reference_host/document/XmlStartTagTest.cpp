#include "reference_host/document/XmlStartTag.h"

#include <gmock/gmock.h>

using ReferenceHost::EscapeAttributeValue;
using ReferenceHost::EscapeText;
using ReferenceHost::FindElementEnd;
using ReferenceHost::ReadStartTag;
using ReferenceHost::StartTag;

namespace
{

TEST(StartTags, TellTheirAttributesWithTheBlanksBefore)
{
    const std::string text = "<a:b\n  x = 'one > two'\ty:z=\"\" >";

    const StartTag tag = ReadStartTag(text, 0);

    ASSERT_EQ(tag.attributes.size(), 2U);
    EXPECT_EQ(tag.name, "a:b");
    EXPECT_EQ(tag.attributes[0].name, "x");
    EXPECT_EQ(tag.attributes[0].quote, '\'');
    EXPECT_EQ(text.substr(tag.attributes[0].begin, 4), "\n  x");
    EXPECT_EQ(text.substr(tag.attributes[0].valueBegin, 9), "one > two");
    EXPECT_EQ(tag.attributes[1].valueBegin, tag.attributes[1].valueEnd);
    EXPECT_EQ(text.substr(tag.attributesEnd), " >");
    EXPECT_EQ(tag.end, text.size());
    EXPECT_FALSE(tag.isEmpty);
}

TEST(StartTags, TellThatTheyCloseThemselves)
{
    const StartTag tag = ReadStartTag("..<a x='/'/>..", 2);

    EXPECT_TRUE(tag.isEmpty);
    EXPECT_EQ(tag.end, 12U);
}

TEST(ElementEnds, AreFoundBehindMarkupThatOnlyLooksLikeTags)
{
    const std::string element = "<a><!-- </a> --><b x='</a>'/><![CDATA[</a>]]><?pi </a>?><a></a ></a>";

    EXPECT_EQ(FindElementEnd(element + "<a/>", 0), element.size());
}

TEST(Escapes, KeepOnlyWhatTheQuotesAllow)
{
    EXPECT_EQ(EscapeAttributeValue("a<b & \"c\" 'd'\te\n", '"'), "a&lt;b &amp; &quot;c&quot; 'd'&#9;e&#10;");
    EXPECT_EQ(EscapeAttributeValue("\"c\" 'd'", '\''), "\"c\" &apos;d&apos;");
    EXPECT_EQ(EscapeText("a<b> & \"c\" ]]>"), "a&lt;b> &amp; \"c\" ]]&gt;");
}

} // namespace
