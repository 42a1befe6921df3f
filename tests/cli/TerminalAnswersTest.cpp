// What is asked at a terminal, and what the lines that are typed mean.

#include "apps/cli/TerminalAnswers.h"

#include "reference_host/resources/Language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

using Cli::TerminalAnswers;
using testing::HasSubstr;
using testing::Optional;
using Workbench::StyleList;
using Workbench::StyleListEntry;
using Workbench::StyleListPart;

namespace
{

class AskedAtATerminal : public testing::Test
{
protected:
    ~AskedAtATerminal() override { ReferenceHost::SetLanguage("en"); }

    /// Lets the person type these lines.
    TerminalAnswers& Typing(const std::string& lines)
    {
        input.str(lines);
        input.clear();
        output.str("");
        return answers;
    }

    static StyleListEntry Entry(unsigned id, const wchar_t* name)
    {
        StyleListEntry entry;
        entry.id = id;
        entry.text = name;
        entry.styleName = name;
        return entry;
    }

    std::istringstream input;
    std::ostringstream output;
    TerminalAnswers answers{input, output};
    const StyleList styles{
        {Entry(9, L"Sea"), Entry(10, L"Sand & Stone"), Entry(11, L"Moss")}, false, StyleListPart::More};
};

} // namespace

TEST_F(AskedAtATerminal, TakesTheNameThatIsTyped)
{
    EXPECT_THAT(Typing("Warm\n").NamePreset(L"New Preset"), Optional(OvxStringT(L"Warm")));
    EXPECT_EQ(output.str(), "Name of the preset [New Preset]: ");
}

TEST_F(AskedAtATerminal, TakesTheProposedNameForAnEmptyLine)
{
    EXPECT_THAT(Typing("\n").NamePreset(L"New Preset"), Optional(OvxStringT(L"New Preset")));
    EXPECT_THAT(Typing(" \t\r\n").NamePreset(L"New Preset"), Optional(OvxStringT(L"New Preset")));
}

TEST_F(AskedAtATerminal, TakesNoBlanksRoundAName)
{
    EXPECT_THAT(Typing("  Warm glow \r\n").NamePreset(L""), Optional(OvxStringT(L"Warm glow")));
}

TEST_F(AskedAtATerminal, GivesUpAtTheEndOfTheInput)
{
    EXPECT_EQ(Typing("").NamePreset(L"New Preset"), std::nullopt);
    EXPECT_EQ(output.str(), "Name of the preset [New Preset]: \n");
    EXPECT_EQ(Typing("").ChooseStyle(styles), std::nullopt);
    EXPECT_FALSE(Typing("").Confirm(L"Replace it?"));
}

TEST_F(AskedAtATerminal, TakesALastLineThatIsNotEnded)
{
    EXPECT_THAT(Typing("Warm").NamePreset(L""), Optional(OvxStringT(L"Warm")));
    EXPECT_TRUE(Typing("y").Confirm(L"Replace it?"));
}

TEST_F(AskedAtATerminal, MeansYesByItsWordsAlone)
{
    for (const char* yes : {"y\n", "Y\n", "yes\n", "YES\n", "  yes  \n"})
        EXPECT_TRUE(Typing(yes).Confirm(L"Replace it?")) << yes;
    for (const char* no : {"n\n", "no\n", "\n", "ye\n", "yes please\n", "j\n", "ja\n", "1\n"})
        EXPECT_FALSE(Typing(no).Confirm(L"Replace it?")) << no;
}

TEST_F(AskedAtATerminal, ShowsWhatAnEmptyLineMeans)
{
    static_cast<void>(Typing("\n").Confirm(L"Replace it?"));

    EXPECT_EQ(output.str(), "Replace it? [y/N] ");
}

TEST_F(AskedAtATerminal, SpeaksTheLanguageInForce)
{
    ReferenceHost::SetLanguage("de");

    EXPECT_TRUE(Typing("j\n").Confirm(L"Ersetzen?"));
    EXPECT_TRUE(Typing("Ja\n").Confirm(L"Ersetzen?"));
    EXPECT_FALSE(Typing("y\n").Confirm(L"Ersetzen?"));
    EXPECT_EQ(output.str(), "Ersetzen? [j/N] ");
}

TEST_F(AskedAtATerminal, ShowsTheStylesToChooseFrom)
{
    static_cast<void>(Typing("\n").ChooseStyle(styles));

    EXPECT_EQ(output.str(), "9      Sea\n"
                            "10     Sand & Stone\n"
                            "11     Moss\n"
                            "Style (id or name, nothing to give up): ");
}

TEST_F(AskedAtATerminal, ChoosesAStyleByIdOrName)
{
    EXPECT_THAT(Typing("11\n").ChooseStyle(styles), Optional(std::size_t{2}));
    EXPECT_THAT(Typing("Sand & Stone\n").ChooseStyle(styles), Optional(std::size_t{1}));
}

TEST_F(AskedAtATerminal, AsksAgainForAStyleThatIsNotThere)
{
    EXPECT_THAT(Typing("Clay\n12\nSea\n").ChooseStyle(styles), Optional(std::size_t{0}));

    EXPECT_THAT(output.str(), HasSubstr("There is no Clay in this list.\n"));
    EXPECT_THAT(output.str(), HasSubstr("There is no 12 in this list.\n"));
}

TEST_F(AskedAtATerminal, GivesUpOnAnEmptyLineAfterAStyleThatIsNotThere)
{
    EXPECT_EQ(Typing("Clay\n\nSea\n").ChooseStyle(styles), std::nullopt);
}
