#include "apps/workbench/Selector.h"

#include "apps/workbench/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using Workbench::ParseSelector;
using Workbench::Selector;
using Workbench::SelectorField;
using Workbench::SelectorScope;
using Workbench::SelectorTerm;
using Workbench::UsageError;

namespace
{

auto IsTerm(SelectorField field, const wchar_t* pattern)
{
    return AllOf(Field(&SelectorTerm::field, field), Field(&SelectorTerm::pattern, OvxStringT(pattern)));
}

std::string ErrorOf(const wchar_t* text)
{
    try
    {
        static_cast<void>(ParseSelector(text));
    }
    catch (const UsageError& error)
    {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(SelectorText, AllSelectsEveryObject)
{
    const Selector selector = ParseSelector(L"all");

    EXPECT_EQ(selector.scope, SelectorScope::Objects);
    EXPECT_EQ(selector.text, L"all");
    EXPECT_THAT(selector.terms, ElementsAre(IsTerm(SelectorField::All, L"")));
}

TEST(SelectorText, HasATermForEachField)
{
    const Selector selector = ParseSelector(L"page:2,name:Box*,style:Mid One,kind:custom-*,id:1/4/2");

    EXPECT_THAT(selector.terms,
                ElementsAre(IsTerm(SelectorField::Page, L"2"), IsTerm(SelectorField::Name, L"Box*"),
                            IsTerm(SelectorField::Style, L"Mid One"),
                            IsTerm(SelectorField::Kind, L"custom-*"), IsTerm(SelectorField::Id, L"1/4/2")));
}

TEST(SelectorText, KeepsCommasInsideClosedBracketsTogether)
{
    const Selector selector = ParseSelector(L"name:a[,]b,kind:rect");

    EXPECT_THAT(selector.terms,
                ElementsAre(IsTerm(SelectorField::Name, L"a[,]b"), IsTerm(SelectorField::Kind, L"rect")));
}

TEST(SelectorText, SplitsAtACommaBehindABracketThatIsNeverClosed)
{
    const Selector selector = ParseSelector(L"name:a[b,kind:rect");

    EXPECT_THAT(selector.terms,
                ElementsAre(IsTerm(SelectorField::Name, L"a[b"), IsTerm(SelectorField::Kind, L"rect")));
}

TEST(SelectorText, AnEmptyNameLooksForUnnamedObjects)
{
    EXPECT_THAT(ParseSelector(L"name:").terms, ElementsAre(IsTerm(SelectorField::Name, L"")));
}

TEST(SelectorText, LeadingZerosOfNumbersDoNotCount)
{
    EXPECT_THAT(ParseSelector(L"page:007,id:01/04").terms,
                ElementsAre(IsTerm(SelectorField::Page, L"7"), IsTerm(SelectorField::Id, L"1/4")));
}

TEST(SelectorText, DefaultsSelectsTheDefaultStyle)
{
    const Selector selector = ParseSelector(L"defaults");

    EXPECT_EQ(selector.scope, SelectorScope::Defaults);
    EXPECT_THAT(selector.terms, IsEmpty());
}

TEST(SelectorText, SheetTakesAllThatFollowsForTheName)
{
    const Selector selector = ParseSelector(L"sheet:Boxes, red:dark");

    EXPECT_EQ(selector.scope, SelectorScope::Sheet);
    EXPECT_EQ(selector.styleName, L"Boxes, red:dark");
    EXPECT_THAT(selector.terms, IsEmpty());
}

TEST(SelectorText, RefusesDefaultsAndSheetBesideOtherTerms)
{
    EXPECT_THAT(ErrorOf(L"all,defaults"), HasSubstr("\"defaults\" cannot be joined with other terms"));
    EXPECT_THAT(ErrorOf(L"kind:rect,sheet:Base"),
                HasSubstr("\"sheet:Base\" cannot be joined with other terms"));
}

TEST(SelectorText, RefusesAnUnknownTermAndSaysWhatThereIs)
{
    EXPECT_EQ(ErrorOf(L"all,colour:red"),
              "selector \"all,colour:red\": \"colour:red\" is not a term; expected all, page:N, name:GLOB, "
              "style:GLOB, "
              "kind:GLOB or id:1/4/2, joined by commas, or defaults or sheet:NAME alone");
}

TEST(SelectorText, RefusesEmptyTerms)
{
    EXPECT_THAT(ErrorOf(L""), HasSubstr("\"\" is not a term"));
    EXPECT_THAT(ErrorOf(L"all,"), HasSubstr("\"\" is not a term"));
    EXPECT_THAT(ErrorOf(L"kind:"), HasSubstr("nothing stands behind the colon"));
    EXPECT_THAT(ErrorOf(L"sheet:"), HasSubstr("nothing stands behind the colon"));
}

TEST(SelectorText, RefusesPagesThatAreNoNumbers)
{
    EXPECT_THAT(ErrorOf(L"page:0"), HasSubstr("\"0\" is not the number of a page"));
    EXPECT_THAT(ErrorOf(L"page:-1"), HasSubstr("\"-1\" is not the number of a page"));
    EXPECT_THAT(ErrorOf(L"page:two"), HasSubstr("\"two\" is not the number of a page"));
}

TEST(SelectorText, RefusesIdsOfAnotherForm)
{
    EXPECT_THAT(ErrorOf(L"id:4"), HasSubstr("\"4\" is not an id"));
    EXPECT_THAT(ErrorOf(L"id:1/0"), HasSubstr("\"1/0\" is not an id"));
    EXPECT_THAT(ErrorOf(L"id:1//2"), HasSubstr("\"1//2\" is not an id"));
    EXPECT_THAT(ErrorOf(L"id:1/b"), HasSubstr("\"1/b\" is not an id"));
}
