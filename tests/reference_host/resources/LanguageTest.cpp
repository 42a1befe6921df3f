#include "reference_host/resources/Language.h"

#include "host/resources/Resources.h"
#include "host/utils/Utf8.h"
#include "reference_host/resources/BuiltInCatalogues.h"
#include "reference_host/resources/Catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using Framework::Resources::GetString;
using ReferenceHost::BuiltInCatalogue;
using ReferenceHost::Catalogue;
using ReferenceHost::SetLanguage;
using ::testing::ElementsAre;

namespace
{

/// Leaves English in force.
class Texts : public ::testing::Test
{
protected:
    ~Texts() override { SetLanguage("en"); }
};

Catalogue Parse(const BuiltInCatalogue& builtIn)
{
    return Catalogue::Parse(builtIn.fileName, builtIn.content);
}

/// The catalogues other than English, with English itself for comparison.
class Translation : public ::testing::TestWithParam<BuiltInCatalogue>
{
protected:
    Catalogue english = Parse(ReferenceHost::GetBuiltInCatalogues().front());
    Catalogue translated = Parse(GetParam());
};

std::multiset<std::string> InsertsOf(const OvxStringT& text)
{
    std::multiset<std::string> inserts;
    const std::string bytes = OvxUtils::ToUtf8(text);
    for (std::size_t at = bytes.find('%'); at != std::string::npos; at = bytes.find('%', at + 2))
        inserts.insert(bytes.substr(at, 2));
    return inserts;
}

std::set<OvxStringT> KeysOf(const Catalogue& catalogue)
{
    return {catalogue.GetKeys().begin(), catalogue.GetKeys().end()};
}

std::string NameOf(const ::testing::TestParamInfo<BuiltInCatalogue>& tested)
{
    return std::string(tested.param.language);
}

} // namespace

TEST_F(Texts, AreEnglishAtFirst)
{
    EXPECT_EQ(ReferenceHost::GetLanguage(), "en");
    EXPECT_EQ(GetString(L"category.fill"), OvxStringT(L"Fill"));
}

TEST_F(Texts, FollowTheLanguage)
{
    const bool isKnown = SetLanguage("de");

    EXPECT_TRUE(isKnown);
    EXPECT_EQ(ReferenceHost::GetLanguage(), "de");
    EXPECT_EQ(GetString(L"category.fill"), OvxStringT(L"F\x00fcllung"));
}

TEST_F(Texts, KeepTheirLanguageWhenAnUnknownOneIsAskedFor)
{
    SetLanguage("de");

    const bool isKnown = SetLanguage("tlh");

    EXPECT_FALSE(isKnown);
    EXPECT_EQ(ReferenceHost::GetLanguage(), "de");
}

TEST_F(Texts, WithoutAnEntryAreTheirKey)
{
    EXPECT_EQ(GetString(L"somebody.elses.label"), OvxStringT(L"somebody.elses.label"));
    EXPECT_EQ(GetString(L""), OvxStringT());
}

TEST_F(Texts, FillTheTitleOfAPanelWithCategoryAndStyle)
{
    const OvxStringT pattern = GetString(L"e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a");

    const OvxStringT title = OvxStringT::FormatMessageInserts(pattern, {L"Fill", L"Accent"});

    EXPECT_EQ(title, OvxStringT(L"Fill: Accent"));
}

TEST(PanelTexts, AreAllThere)
{
    const std::vector<OvxStringT> keys = {
        L"e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a", L"881fe267-e7e0-4e0e-879a-1771032cbd0e",
        L"e00592b9-072e-4ce1-9cb1-92085fbc0591", L"d342e6ca-41ea-42a4-8f92-6e5579ad3715",
        L"7df734c4-2fb0-41fb-b368-5fadc8758275", L"f6dd6f91-646d-4758-ba17-db358538fa3e",
        L"6d36d862-aac1-4e48-a9eb-2ac57f1862b1", L"a17f1a53-850c-459c-81df-297c75d6e567",
        L"1afd0b33-8a69-4ebe-bfcd-a0c00531518a", L"f28ee68b-9815-4dc6-8faa-529bd81fcb44",
        L"d067aa9e-2e7b-48e4-b8f7-d1269f936601", L"21f1822a-aa97-4a53-bd73-31d27c53fc3b",
        L"f5cefe53-8452-41c0-888b-b882ff5a4ba0", L"d7f0b1e3-1872-49eb-8b70-e6060b1c789d",
        L"cd4094d1-a5e1-4fb0-89e6-0c33c6f2b99f"};

    for (const OvxStringT& key : keys)
        EXPECT_NE(GetString(key), key) << OvxUtils::ToUtf8(key);
}

TEST(PanelTexts, ForMenusTakeTheNameOfTheParent)
{
    for (const wchar_t* key :
         {L"f6dd6f91-646d-4758-ba17-db358538fa3e", L"6d36d862-aac1-4e48-a9eb-2ac57f1862b1",
          L"a17f1a53-850c-459c-81df-297c75d6e567"})
        EXPECT_THAT(InsertsOf(GetString(key)), ElementsAre("%1"));
}

TEST(Languages, AreEnglishAndGerman)
{
    EXPECT_THAT(ReferenceHost::GetLanguages(), ElementsAre("en", "de"));
}

TEST(Languages, AreChosenByTheBeginningOfALocale)
{
    EXPECT_EQ(ReferenceHost::FindLanguageFor("de_AT.UTF-8"), "de");
    EXPECT_EQ(ReferenceHost::FindLanguageFor("de"), "de");
    EXPECT_EQ(ReferenceHost::FindLanguageFor("de@euro"), "de");
    EXPECT_EQ(ReferenceHost::FindLanguageFor("de-CH"), "de");
    EXPECT_EQ(ReferenceHost::FindLanguageFor("en_GB.UTF-8"), "en");
}

TEST(Languages, AreEnglishForEveryOtherLocale)
{
    EXPECT_EQ(ReferenceHost::FindLanguageFor("C"), "en");
    EXPECT_EQ(ReferenceHost::FindLanguageFor(""), "en");
    EXPECT_EQ(ReferenceHost::FindLanguageFor("den_CA"), "en");
}

TEST_P(Translation, HasTheKeysOfTheEnglishCatalogue)
{
    EXPECT_EQ(KeysOf(translated), KeysOf(english));
}

TEST_P(Translation, HasTheInsertsOfTheEnglishTexts)
{
    for (const OvxStringT& key : english.GetKeys())
    {
        const OvxStringT* text = translated.Find(key);
        ASSERT_NE(text, nullptr) << OvxUtils::ToUtf8(key);
        EXPECT_EQ(InsertsOf(*text), InsertsOf(*english.Find(key))) << OvxUtils::ToUtf8(key);
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogues, Translation,
                         ::testing::ValuesIn(ReferenceHost::GetBuiltInCatalogues().begin() + 1,
                                             ReferenceHost::GetBuiltInCatalogues().end()),
                         &NameOf);
