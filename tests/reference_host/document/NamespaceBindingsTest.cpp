#include "reference_host/document/NamespaceBindings.h"

#include <gtest/gtest.h>

using ReferenceHost::NamespaceBindings;

namespace
{

TEST(NamespaceBindings, FindTheInnermostDeclaration)
{
    NamespaceBindings bindings;
    bindings.Declare("a", "outer");
    bindings.Declare("a", "inner");

    const std::string_view* const found = bindings.Find("a");

    ASSERT_NE(found, nullptr);
    EXPECT_EQ(*found, "inner");
}

TEST(NamespaceBindings, ForgetWhatWasReleased)
{
    NamespaceBindings bindings;
    bindings.Declare("a", "outer");
    const std::size_t mark = bindings.Mark();
    bindings.Declare("a", "inner");
    EXPECT_EQ(*bindings.Find("a"), "inner");

    bindings.Release(mark);

    EXPECT_EQ(*bindings.Find("a"), "outer");
}

TEST(NamespaceBindings, DoNotKnowWhatWasNeverDeclared)
{
    NamespaceBindings bindings;
    bindings.Declare("a", "uri");

    EXPECT_EQ(bindings.Find("b"), nullptr);
    EXPECT_EQ(bindings.Find(""), nullptr);
}

TEST(NamespaceBindings, KnowTheXmlPrefixFromTheStart)
{
    NamespaceBindings bindings;

    const std::string_view* const found = bindings.Find("xml");

    ASSERT_NE(found, nullptr);
    EXPECT_EQ(*found, "http://www.w3.org/XML/1998/namespace");
}

TEST(NamespaceBindings, EndTheDefaultNamespaceWithAnEmptyUri)
{
    NamespaceBindings bindings;
    bindings.Declare("", "uri");
    bindings.Declare("", "");

    EXPECT_EQ(bindings.Find(""), nullptr);
}

TEST(NamespaceBindings, TellApartPrefixesThatShareASlot)
{
    NamespaceBindings bindings;
    // Length, first and last letter decide the slot.
    bindings.Declare("axb", "first");
    bindings.Declare("ayb", "second");

    EXPECT_EQ(*bindings.Find("axb"), "first");
    EXPECT_EQ(*bindings.Find("ayb"), "second");
    EXPECT_EQ(*bindings.Find("axb"), "first");
}

TEST(NamespaceBindings, NoticeTwoPrefixesOfOneNamespace)
{
    NamespaceBindings bindings;
    bindings.Declare("a", "uri");
    bindings.Declare("a", "uri");
    EXPECT_FALSE(bindings.HasAliases());

    bindings.Declare("b", "uri");

    EXPECT_TRUE(bindings.HasAliases());
}

} // namespace
