#include "reference_host/document/XmlScan.h"

#include "reference_host/document/DocumentError.h"

#include <gmock/gmock.h>

using ReferenceHost::DocumentError;
using ReferenceHost::kDeepestNesting;
using ReferenceHost::ScanXml;
using testing::HasSubstr;

namespace
{

/// The error of a scan; empty texts when there is none.
DocumentError ErrorOf(std::string_view text)
{
    try
    {
        ScanXml(text, "x.fodg");
    }
    catch (const DocumentError& error)
    {
        return error;
    }
    return {"", "", ""};
}

std::string Nested(std::size_t depth)
{
    std::string text;
    for (std::size_t level = 0; level < depth; ++level)
        text += "<a>";
    for (std::size_t level = 0; level < depth; ++level)
        text += "</a>";
    return text;
}

class SoundXml : public testing::TestWithParam<std::string_view>
{
};

TEST_P(SoundXml, Passes)
{
    EXPECT_NO_THROW(ScanXml(GetParam(), "x.fodg"));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, SoundXml,
    testing::Values("<a/>", "<a></a>", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a/>\n",
                    "<?xml version='1.0' encoding='utf-8' standalone='yes'?><a/>",
                    "<?xml version=\"1.0\" encoding=\"US-ASCII\"?><a/>", "\xEF\xBB\xBF<a/>",
                    "<!-- before --><?pi some?><a/><!-- after -->", "<a b='1' c=\"2\" />",
                    "<a b = '1'\n\tc='2'></a >", "<a b='\"' c=\"'\"/>",
                    "<a>&lt;&gt;&amp;&apos;&quot;&#65;&#x1F600;</a>", "<a b='&#10;&amp;'/>",
                    "<a><![CDATA[<b>&]] ]]></a>", "<a>] ]] ]></a>", "<p:a xmlns:p='u' p:b='1' b='2'/>",
                    "<a xmlns='u'><b xmlns=''/></a>", "<a xml:id='x'/>",
                    "<Gr\xC3\xBCn gr\xC3\xB6\xC3\x9F"
                    "e='\xE2\x82\xAC \xF0\x9F\x98\x80'/>",
                    "<a><!-- \xC3\xA9--></a>", "<?xml-stylesheet href='a'?><a/>"));

TEST(XmlScan, AllowsElementsThatNestAsDeepAsTheLimit)
{
    EXPECT_NO_THROW(ScanXml(Nested(kDeepestNesting), "x.fodg"));
}

TEST(XmlScan, RefusesElementsThatNestDeeperThanTheLimit)
{
    const DocumentError error = ErrorOf(Nested(257));

    EXPECT_EQ(error.GetProblem(), "elements nest deeper than 256");
    EXPECT_EQ(error.GetWhere(), "x.fodg, line 1, <a>");
}

TEST(XmlScan, CountsNestingAndNotElements)
{
    std::string text = "<r>";
    for (int element = 0; element < 1000; ++element)
        text += "<a/><b></b>";
    text += "</r>";

    EXPECT_NO_THROW(ScanXml(text, "x.fodg"));
}

struct Flaw
{
    std::string_view text;
    const char* problem;
};

class FlawedXml : public testing::TestWithParam<Flaw>
{
};

TEST_P(FlawedXml, IsRefusedWithItsFlaw)
{
    const DocumentError error = ErrorOf(GetParam().text);

    EXPECT_THAT(error.GetProblem(), HasSubstr(GetParam().problem));
}

INSTANTIATE_TEST_SUITE_P(Doctype, FlawedXml,
                         testing::Values(Flaw{"<!DOCTYPE a><a/>", "DOCTYPE"},
                                         Flaw{"<?xml version='1.0'?>\n<!DOCTYPE a []><a/>", "DOCTYPE"},
                                         Flaw{"<!ELEMENT a><a/>", "markup that XML does not know"}));

INSTANTIATE_TEST_SUITE_P(Encodings, FlawedXml,
                         testing::Values(Flaw{"\xFF\xFE<\0a\0", "UTF-16"}, Flaw{"\xFE\xFF", "UTF-16"},
                                         Flaw{std::string_view("<\0a\0/\0>\0", 8), "UTF-16"},
                                         Flaw{std::string_view("\0<\0a\0/\0>", 8), "UTF-16"},
                                         Flaw{std::string_view("\xFF\xFE\0\0<\0\0\0", 8), "UTF-32"},
                                         Flaw{"<?xml version='1.0' encoding='ISO-8859-1'?><a/>",
                                              "\"ISO-8859-1\""},
                                         Flaw{"<?xml version='1.0' encoding='UTF-16'?><a/>", "\"UTF-16\""}));

INSTANTIATE_TEST_SUITE_P(
    Bytes, FlawedXml,
    testing::Values(Flaw{"<a>\xC3</a>", "not UTF-8"}, Flaw{"<a>\x80</a>", "not UTF-8"},
                    Flaw{"<a b='\xFF'/>", "not UTF-8"}, Flaw{"<a>\xC0\xAF</a>", "not UTF-8"},
                    Flaw{"<a>\xE0\x80\xAF</a>", "not UTF-8"}, Flaw{"<a>\xED\xA0\x80</a>", "not UTF-8"},
                    Flaw{"<a>\xF4\x90\x80\x80</a>", "not UTF-8"}, Flaw{"<a>\xE2\x82</a>", "not UTF-8"},
                    Flaw{"<a\xC3/>", "not UTF-8"}, Flaw{"<a><!-- \xC3--></a>", "not UTF-8"},
                    Flaw{"<a>\xEF\xBF\xBE</a>", "character that XML does not allow"},
                    Flaw{"<a>\x01</a>", "control character"},
                    Flaw{std::string_view("<a>\0</a>", 8), "control character"},
                    Flaw{"<a b='\x1F'/>", "control character"}));

INSTANTIATE_TEST_SUITE_P(
    Attributes, FlawedXml,
    testing::Values(Flaw{"<a b='1' b='2'/>", "attribute b stands there twice"},
                    Flaw{"<a xmlns:p='u' xmlns:q='u' p:b='1' q:b='2'/>", "two prefixes of one namespace"},
                    Flaw{"<a xmlns:p='u' xmlns:p='v'/>", "xmlns:p stands there twice"},
                    Flaw{"<a b='1'c='2'/>", "not separated"}, Flaw{"<a b/>", "b has no value"},
                    Flaw{"<a b=1/>", "not quoted"}, Flaw{"<a b='<'/>", "\"<\" stands in an attribute value"},
                    Flaw{"<a b='1", "value is not finished"},
                    Flaw{"<a 1='x'/>", "where an attribute must stand"},
                    Flaw{"<a b='&x;'/>", "reference that XML knows"}));

INSTANTIATE_TEST_SUITE_P(Namespaces, FlawedXml,
                         testing::Values(Flaw{"<p:a/>", "prefix of p:a is not declared"},
                                         Flaw{"<a p:b='1'/>", "prefix of p:b is not declared"},
                                         Flaw{"<a><b xmlns:p='u'/><p:c/></a>",
                                              "prefix of p:c is not declared"},
                                         Flaw{"<a xmlns:p=''/>", "declared for no namespace"},
                                         Flaw{"<a:b:c xmlns:a='u'/>", "is no name"},
                                         Flaw{"<:a/>", "is no name"}, Flaw{"<a:/>", "is no name"}));

INSTANTIATE_TEST_SUITE_P(
    Structure, FlawedXml,
    testing::Values(Flaw{"", "no element"}, Flaw{"  \n", "no element"}, Flaw{"<a>", "never closed"},
                    Flaw{"<a><b></a>", "closes another element"}, Flaw{"</a>", "never opened"},
                    Flaw{"<a/></a>", "never opened"}, Flaw{"<a/><b/>", "second root"},
                    Flaw{"x<a/>", "outside of the root"}, Flaw{"<a/>x", "outside of the root"},
                    Flaw{"<a/><![CDATA[x]]>", "outside of the root"}, Flaw{"<a", "not finished"},
                    Flaw{"<a /x>", "not finished"}, Flaw{"<a></a", "end tag is not finished"},
                    Flaw{"<a>< b/></a>", "no name"}, Flaw{"<a><!-- x</a>", "comment is not finished"},
                    Flaw{"<a><!-- -- --></a>", "\"--\" stands inside"},
                    Flaw{"<a><![CDATA[x</a>", "CDATA section is not finished"},
                    Flaw{"<a><?x</a>", "instruction is not finished"},
                    Flaw{"<a><?xml version='1.0'?></a>", "inside the text"},
                    Flaw{" <?xml version='1.0'?><a/>", "inside the text"}));

INSTANTIATE_TEST_SUITE_P(Text, FlawedXml,
                         testing::Values(Flaw{"<a>&nbsp;</a>", "reference that XML knows"},
                                         Flaw{"<a>& b</a>", "reference that XML knows"},
                                         Flaw{"<a>&#0;</a>", "reference that XML knows"},
                                         Flaw{"<a>&#xD800;</a>", "reference that XML knows"},
                                         Flaw{"<a>&#x;</a>", "reference that XML knows"},
                                         Flaw{"<a>&lt</a>", "reference that XML knows"},
                                         Flaw{"<a>]]></a>", "\"]]>\" stands in text"}));

TEST(XmlScan, FindsOneOfManyAttributesThatIsThereTwice)
{
    std::string text = "<a";
    for (int attribute = 0; attribute < 100; ++attribute)
        text += " b" + std::to_string(attribute) + "='x'";
    text += " b57='y'/>";

    const DocumentError error = ErrorOf(text);

    EXPECT_EQ(error.GetProblem(), "the attribute b57 stands there twice");
    EXPECT_EQ(error.GetWhere(), "x.fodg, line 1, <a>");
}

std::string WithNamespaces(std::size_t count)
{
    std::string text = "<a";
    for (std::size_t number = 0; number < count; ++number)
        text.append(" xmlns:b").append(std::to_string(number)).append("='u'");
    return text + "/>";
}

TEST(XmlScan, LimitsTheNamespacesInForce)
{
    constexpr std::size_t kXml = 1; // The prefix that needs no declaration.

    EXPECT_NO_THROW(ScanXml(WithNamespaces(ReferenceHost::kMostNamespacesInForce - kXml), "x.fodg"));
    EXPECT_EQ(ErrorOf(WithNamespaces(ReferenceHost::kMostNamespacesInForce)).GetProblem(),
              "there are too many declarations of namespaces");
}

std::string WithAttributes(std::size_t count)
{
    std::string text = "<a";
    for (std::size_t number = 0; number < count; ++number)
        text.append(" b").append(std::to_string(number)).append("=''");
    return text + "/>";
}

TEST(XmlScan, LimitsTheAttributesOfAnElement)
{
    EXPECT_NO_THROW(ScanXml(WithAttributes(ReferenceHost::kMostAttributes), "x.fodg"));
    EXPECT_EQ(ErrorOf(WithAttributes(ReferenceHost::kMostAttributes + 1)).GetProblem(),
              "the element has more than 1000 attributes");
}

TEST(XmlScan, LimitsTheLengthOfValues)
{
    const std::string longest(ReferenceHost::kLongestValue, 'x');

    EXPECT_NO_THROW(ScanXml("<a b='" + longest + "'/>", "x.fodg"));
    EXPECT_EQ(ErrorOf("<a b='" + longest + "x'/>").GetProblem(), "the value of b is longer than 16 MiB");
}

TEST(XmlScan, NamesFileLineAndElement)
{
    const DocumentError error = ErrorOf("<a>\n <b>\n  &wrong;\n </b>\n</a>");

    EXPECT_EQ(error.GetWhere(), "x.fodg, line 3, <b>");
    EXPECT_EQ(error.GetExpected(), "\"&amp;\" or a character reference");
}

} // namespace
