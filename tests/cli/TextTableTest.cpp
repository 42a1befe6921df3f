#include "apps/cli/TextTable.h"

#include <gtest/gtest.h>

using Cli::Colouring;
using Cli::LayOut;
using Cli::OutputRole;
using Cli::TextLine;

TEST(TextTable, PutsCellsInColumnsAndEndsNoLineInBlanks)
{
    const std::vector<TextLine> lines = {{{{L"a"}, {L"long"}, {L"x"}}}, {{{L"longer"}, {L"b"}, {L"y"}}}};

    EXPECT_EQ(LayOut(lines, Colouring::Off), "a       long  x\n"
                                             "longer  b     y\n");
}

TEST(TextTable, KeepsTheColumnsBehindAnEmptyCell)
{
    const std::vector<TextLine> lines = {{{{L"a"}, {L""}, {L"x"}}}, {{{L""}, {L"b"}, {L"y"}}, 2}};

    EXPECT_EQ(LayOut(lines, Colouring::Off), "a      x\n"
                                             "    b  y\n");
}

TEST(TextTable, CountsTheIndentOfALineAsPartOfItsFirstColumn)
{
    const std::vector<TextLine> lines = {{{{L"root"}, {L"1"}}}, {{{L"leaf"}, {L"2"}}, 4}};

    EXPECT_EQ(LayOut(lines, Colouring::Off), "root      1\n"
                                             "    leaf  2\n");
}

TEST(TextTable, MeasuresWhatATerminalShows)
{
    const std::vector<TextLine> lines = {
        {{{L"矩形"}, {L"1"}}}, {{{L"e\u0301"}, {L"2"}}}, {{{L"abcd"}, {L"3"}}}};

    EXPECT_EQ(LayOut(lines, Colouring::Off), "矩形  1\n"
                                             "e\u0301     2\n"
                                             "abcd  3\n");
}

TEST(TextTable, LetsSingleCellsAndEmptyLinesStandOutsideTheColumns)
{
    const std::vector<TextLine> lines = {{{{L"a heading that is long"}}}, {}, {{{L"a"}, {L"b"}}, 2}};

    EXPECT_EQ(LayOut(lines, Colouring::Off), "a heading that is long\n"
                                             "\n"
                                             "  a  b\n");
}

TEST(TextTable, ColoursCellsByTheirRoleOutsideTheirPadding)
{
    const std::vector<TextLine> lines = {{{{L"a", OutputRole::Local}, {L"b", OutputRole::Plain}}},
                                         {{{L"abc", OutputRole::Plain}, {L"", OutputRole::Ambiguous}}}};

    EXPECT_EQ(LayOut(lines, Colouring::On), "\x1B[32ma\x1B[0m    b\n"
                                            "abc\n");
}

TEST(TextTable, ShowsControlCharactersAsAReplacement)
{
    const std::vector<TextLine> lines = {{{{L"a\nb\x1B[31m\x9B"}, {L"c"}}}};

    EXPECT_EQ(LayOut(lines, Colouring::Off), "a\uFFFDb\uFFFD[31m\uFFFD  c\n");
}
