#include "reference_host/resources/Catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

using ReferenceHost::Catalogue;
using ReferenceHost::CatalogueError;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

OvxStringT TextOf(const Catalogue& catalogue, const OvxStringT& key)
{
    const OvxStringT* text = catalogue.Find(key);
    return text == nullptr ? OvxStringT(L"no text") : *text;
}

struct BadCatalogue
{
    const char* what;
    const char* content;
    const char* message;
};

class BadLine : public ::testing::TestWithParam<BadCatalogue>
{
};

constexpr std::array kBadCatalogues = {
    BadCatalogue{"WithoutASeparator", "# note\n\nkey text\n", "test.catalogue:3: expected KEY = TEXT"},
    BadCatalogue{"WithoutAKey", "= text\n", "test.catalogue:1: expected KEY = TEXT"},
    BadCatalogue{"WithAKeyTwice", "a = 1\nb = 2\na = 3",
                 "test.catalogue:3: expected a key that does not stand above already, found a"},
    BadCatalogue{"WithAnUnknownEscape", "a = 1\nb = \\t\n",
                 "test.catalogue:2: expected \"n\" or a backslash after a backslash"},
    BadCatalogue{"WithABackslashAtTheEnd", "a = 1\\",
                 "test.catalogue:1: expected \"n\" or a backslash after a backslash"},
    BadCatalogue{"InAnotherEncoding", "a = F\xfcllung", "test.catalogue:1: expected UTF-8"},
};

} // namespace

TEST(CatalogueFile, HoldsTextsByTheirKeysInOrder)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", "zebra = Zebra\nant = Ant\n");

    EXPECT_THAT(catalogue.GetKeys(), ElementsAre(OvxStringT(L"zebra"), OvxStringT(L"ant")));
    EXPECT_EQ(TextOf(catalogue, L"ant"), OvxStringT(L"Ant"));
}

TEST(CatalogueFile, HasNoTextForAnUnknownKey)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", "ant = Ant");

    EXPECT_EQ(catalogue.Find(L"Ant"), nullptr);
}

TEST(CatalogueFile, PassesOverEmptyLinesAndComments)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", "# a = 1\n\n  # b = 2\n \t\n");

    EXPECT_THAT(catalogue.GetKeys(), IsEmpty());
}

TEST(CatalogueFile, DoesNotCountSpacesAroundKeysAndTexts)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", "  key\t=  two  words \r\n");

    EXPECT_EQ(TextOf(catalogue, L"key"), OvxStringT(L"two  words"));
}

TEST(CatalogueFile, SplitsALineAtItsFirstSeparator)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", "key = a = b # c");

    EXPECT_EQ(TextOf(catalogue, L"key"), OvxStringT(L"a = b # c"));
}

TEST(CatalogueFile, ReplacesEscapes)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", R"(key = one\ntwo\\n)");

    EXPECT_EQ(TextOf(catalogue, L"key"), OvxStringT(L"one\ntwo\\n"));
}

TEST(CatalogueFile, MayHoldAnEmptyText)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", "key =");

    EXPECT_EQ(TextOf(catalogue, L"key"), OvxStringT());
}

TEST(CatalogueFile, IsReadAsUtf8)
{
    const Catalogue catalogue = Catalogue::Parse("test.catalogue", "key = F\xc3\xbcllung");

    EXPECT_EQ(TextOf(catalogue, L"key"), OvxStringT(L"F\x00fcllung"));
}

TEST_P(BadLine, IsReportedWithFileAndLine)
{
    std::string message;
    try
    {
        (void)Catalogue::Parse("test.catalogue", GetParam().content);
    }
    catch (const CatalogueError& failure)
    {
        message = failure.what();
    }

    EXPECT_EQ(message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(CatalogueFile, BadLine, ::testing::ValuesIn(kBadCatalogues),
                         [](const auto& tested) { return std::string(tested.param.what); });
