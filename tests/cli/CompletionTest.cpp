// What the shells are told when a word is typed: all that the help names, and what the panel folder knows.

#include "apps/cli/Completion.h"
#include "tests/cli/ToolProcess.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <string>
#include <vector>

using CliTests::RunTool;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSubsetOf;
using testing::IsSupersetOf;
using testing::Not;
using testing::StartsWith;

namespace
{

using Words = std::vector<std::string>;

constexpr const char* kDepthRow =
    R"(<row identifier="depth" property="ShadeDepth" label="Depth" control="choice" kind="choice" order="1">)"
    R"(<choice value="flat" label="Flat"/><choice value="deep" label="Deep"/></row>)";

/// The words that are offered for the last of `words`, without their meanings.
Words Completed(Words words)
{
    words.insert(words.begin(), Cli::kCompletionRequest);
    std::istringstream lines(RunTool(words).output);
    Words completed;
    for (std::string line; std::getline(lines, line);)
        completed.push_back(line.substr(0, line.find('\t')));
    return completed;
}

/// All that `pattern` captures in a text, in its order.
Words Captured(const std::string& text, const std::string& pattern)
{
    const std::regex expression(pattern, std::regex::ECMAScript | std::regex::multiline);
    Words captured;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
        captured.push_back((*match)[1]);
    return captured;
}

/// The commands that the help of a command lists; of the tool itself for no words.
Words CommandsInHelp(Words command)
{
    command.emplace_back("--help");
    const std::string help = RunTool(command).output;
    const std::size_t list = help.find("Subcommands:\n");
    if (list == std::string::npos)
        return {};
    return Captured(help.substr(list, help.find("\n\n", list) - list), "^  ([a-z][a-z-]*) ");
}

/// The options at the beginning of the lines that explain them.
Words OptionsInHelp(Words command)
{
    command.emplace_back("--help");
    const std::string help = RunTool(command).output;
    Words options = Captured(help, "^  (?:-[a-z],)?(--[a-z][a-z-]*)");
    const Words letters = Captured(help, "^  (-[a-z])[, ]");
    options.insert(options.end(), letters.begin(), letters.end());
    return options;
}

Words With(Words words, const std::string& last)
{
    words.push_back(last);
    return words;
}

/// The command and all commands inside it, as words.
std::vector<Words> CommandsBelow(const Words& command)
{
    std::vector<Words> commands{command};
    for (const std::string& inner : CommandsInHelp(command))
    {
        const std::vector<Words> below = CommandsBelow(With(command, inner));
        commands.insert(commands.end(), below.begin(), below.end());
    }
    return commands;
}

} // namespace

TEST(Completion, OffersEveryCommandOfTheHelp)
{
    for (const Words& command : CommandsBelow({}))
        EXPECT_THAT(CommandsInHelp(command), IsSubsetOf(Completed(With(command, ""))));
    EXPECT_THAT(CommandsInHelp({}), Contains("inspect"));
}

TEST(Completion, OffersEveryOptionOfTheHelp)
{
    for (const Words& command : CommandsBelow({}))
    {
        const Words options = OptionsInHelp(command);

        EXPECT_THAT(options, Contains("--help"));
        EXPECT_THAT(options, IsSubsetOf(Completed(With(command, "-"))));
    }
    EXPECT_THAT(OptionsInHelp({"set"}), IsSupersetOf(Words{"--output", "-o", "--in-place"}));
}

TEST(Completion, OffersOnlyWhatBeginsWithWhatIsTyped)
{
    EXPECT_THAT(Completed({"insp"}), ElementsAre("inspect"));
    EXPECT_THAT(Completed({"inspect", "a.fodg", "--ea"}), ElementsAre("--each"));
    EXPECT_THAT(Completed({"no-such"}), IsEmpty());
}

TEST(Completion, TellsTheMeaningBehindATab)
{
    EXPECT_EQ(RunTool({"complete", "inspect", "a.fodg", "--ea"}).output,
              "--each\tReport every object by itself instead of the selection as one\n");
}

TEST(Completion, AsksForDrawingsFilesAndFolders)
{
    EXPECT_THAT(Completed({"inspect", ""}), ElementsAre(":drawings"));
    EXPECT_THAT(Completed({"set", "a.fodg", "-o", ""}), ElementsAre(":drawings"));
    EXPECT_THAT(Completed({"edit", "a.fodg", "--script", ""}), ElementsAre(":files"));
    EXPECT_THAT(Completed({"inspect", "--panels", ""}), ElementsAre(":folders"));
}

TEST(Completion, OffersTermsOfSelectorsAndLanguages)
{
    EXPECT_THAT(Completed({"inspect", "--select", "s"}), ElementsAre("style:", "sheet:"));
    EXPECT_THAT(Completed({"inspect", "--lang="}), ElementsAre("--lang=en", "--lang=de"));
}

TEST(Completion, ReadsPanelsFromTheFolderThatIsChosen)
{
    const WorkbenchTests::ThirdPartyFolder folder;
    folder.Write("shade", WorkbenchTests::DescriptionOf("shade", "ShadeDatasource", kDepthRow));

    const Words command{"set", "--panels", folder.GetPath().string(), "a.fodg"};

    EXPECT_THAT(Completed(With(command, "")), ElementsAre("shade.depth="));
    EXPECT_THAT(Completed(With(command, "shade.depth=")),
                ElementsAre("shade.depth=flat", "shade.depth=deep"));
    EXPECT_THAT(Completed({"inspect", "--panels=" + folder.GetPath().string(), "--panel", ""}),
                ElementsAre("shade"));
}

TEST(Completion, OffersNoPanelOfAFolderThatIsNotThere)
{
    EXPECT_THAT(Completed({"inspect", "--panels", "/no/such/folder", "--panel", ""}), IsEmpty());
}

TEST(Completion, TakesNoValueOfAnOptionForAnOperand)
{
    EXPECT_THAT(Completed({"set", "--select", "all", ""}), ElementsAre(":drawings"));
    EXPECT_THAT(Completed({"set", "--json", ""}), ElementsAre(":drawings"));
}

TEST(Completion, OffersNoOptionsBehindTwoDashes)
{
    EXPECT_THAT(Completed({"inspect", "--", "-"}), Not(Contains(StartsWith("--"))));
}
