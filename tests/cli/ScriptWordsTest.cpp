#include "apps/cli/ScriptWords.h"

#include "apps/workbench/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Cli::SplitWords;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;
using Workbench::UsageError;

TEST(ScriptWords, AreSeparatedByBlanksAndTabs)
{
    EXPECT_THAT(SplitWords(" set\tfill.color=#fff   outline.width=1mm "),
                ElementsAre("set", "fill.color=#fff", "outline.width=1mm"));
}

TEST(ScriptWords, AreNoneOnAnEmptyLineAndInAComment)
{
    EXPECT_THAT(SplitWords(""), IsEmpty());
    EXPECT_THAT(SplitWords(" \t"), IsEmpty());
    EXPECT_THAT(SplitWords("  # set fill.color=\"red"), IsEmpty());
}

TEST(ScriptWords, EndAtACommentThatBeginsAWord)
{
    EXPECT_THAT(SplitWords("clear fill.color # the \"rest"), ElementsAre("clear", "fill.color"));
    EXPECT_THAT(SplitWords("set fill.color=#fff#aaa"), ElementsAre("set", "fill.color=#fff#aaa"));
}

TEST(ScriptWords, HoldBlanksBetweenQuotesAnywhere)
{
    EXPECT_THAT(SplitWords(R"(select "name:Box 1")"), ElementsAre("select", "name:Box 1"));
    EXPECT_THAT(SplitWords(R"(set fill.color="palette:Deep Sea"x)"),
                ElementsAre("set", "fill.color=palette:Deep Seax"));
    EXPECT_THAT(SplitWords(R"("" "#" a""b)"), ElementsAre("", "#", "ab"));
}

TEST(ScriptWords, HoldEscapedQuotesAndBackslashes)
{
    EXPECT_THAT(SplitWords(R"("5\" \\ pipe")"), ElementsAre(R"(5" \ pipe)"));
}

TEST(ScriptWords, KeepBackslashesOutsideQuotes)
{
    EXPECT_THAT(SplitWords(R"(select name:[\]*)"), ElementsAre("select", R"(name:[\]*)"));
}

TEST(ScriptWords, RefuseQuotesThatAreNeverClosed)
{
    EXPECT_THAT([] { static_cast<void>(SplitWords(R"(select "name:Box)")); },
                ThrowsMessage<UsageError>(HasSubstr("never closed")));
    EXPECT_THAT([] { static_cast<void>(SplitWords(R"(select "name:Box\")")); },
                ThrowsMessage<UsageError>(HasSubstr("never closed")));
}

TEST(ScriptWords, RefuseOtherEscapes)
{
    EXPECT_THAT([] { static_cast<void>(SplitWords(R"(select "name:\n")")); },
                ThrowsMessage<UsageError>(HasSubstr(R"(expected \" or \\)")));
    EXPECT_THAT([] { static_cast<void>(SplitWords(R"(select "name:\)")); },
                ThrowsMessage<UsageError>(HasSubstr(R"(expected \" or \\)")));
}
