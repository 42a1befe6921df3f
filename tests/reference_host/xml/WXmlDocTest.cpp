#include "host/xml/WXmlDoc.h"

#include <gtest/gtest.h>

#include <array>

namespace
{

struct Malformed
{
    const char* what;
    const wchar_t* text;
};

class MalformedText : public ::testing::TestWithParam<Malformed>
{
};

constexpr std::array kMalformed = {
    Malformed{"Empty", L""},
    Malformed{"WithoutAnElement", L"only text"},
    Malformed{"NotClosed", L"<a><b></a>"},
    Malformed{"WithTwoRoots", L"<a/><b/>"},
    Malformed{"WithTextBesideTheRoot", L"<a/>text"},
    Malformed{"WithAnAttributeTwice", L"<a><b x='1' x='2'/></a>"},
};

} // namespace

TEST(XmlDocument, LoadsTheElementOfAText)
{
    WXmlDoc document;

    const bool isLoaded =
        document.Load(L"<?xml version='1.0'?><!-- note --><list kind='main'><entry/></list>\n");

    EXPECT_TRUE(isLoaded);
    EXPECT_EQ(document.GetRoot().GetName(), OvxStringT(L"list"));
    EXPECT_EQ(document.GetRoot().Attribute(L"@kind").GetString(), OvxStringT(L"main"));
    EXPECT_EQ(document.GetRoot().GetChildren().size(), 1U);
}

TEST(XmlDocument, HasNoRootBeforeItIsLoaded)
{
    const WXmlDoc document;

    EXPECT_FALSE(document.GetRoot().IsValid());
}

TEST(XmlDocument, MakesNodesOutsideItsContent)
{
    WXmlDoc document;
    document.Load(L"<BaseStylePropertiesDatasource/>");

    const WXmlNode made = document.CreateNode(L"placeholderData");

    EXPECT_EQ(made.GetName(), OvxStringT(L"placeholderData"));
    EXPECT_TRUE(document.GetRoot().GetChildren().empty());
}

TEST(XmlDocument, LosesNothingThatOthersHoldWhenItIsLoadedAgain)
{
    WXmlDoc document;
    document.Load(L"<first/>");
    const WXmlNode first = document.GetRoot();

    document.Load(L"<second/>");

    EXPECT_EQ(first.GetName(), OvxStringT(L"first"));
    EXPECT_EQ(document.GetRoot().GetName(), OvxStringT(L"second"));
}

TEST_P(MalformedText, LeavesTheDocumentWithoutContent)
{
    WXmlDoc document;
    document.Load(L"<before/>");

    const bool isLoaded = document.Load(GetParam().text);

    EXPECT_FALSE(isLoaded);
    EXPECT_FALSE(document.GetRoot().IsValid());
}

INSTANTIATE_TEST_SUITE_P(XmlDocument, MalformedText, ::testing::ValuesIn(kMalformed),
                         [](const auto& tested) { return std::string(tested.param.what); });
