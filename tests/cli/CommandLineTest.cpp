#include "apps/cli/CommandLine.h"

#include "tests/cli/ParsedArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Cli::InformationText;
using Cli::InspectOptions;
using Cli::StylesOptions;
using CliTests::ErrorOf;
using CliTests::Parse;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{

std::string HelpFor(const std::vector<const char*>& arguments)
{
    return std::get<InformationText>(Parse(arguments)).text;
}

} // namespace

TEST(CommandLine, InspectsEverythingByDefault)
{
    const auto options = std::get<InspectOptions>(Parse({"inspect", "a.fodg"}));

    EXPECT_EQ(options.drawing.file, "a.fodg");
    EXPECT_FALSE(options.drawing.isJson);
    EXPECT_FALSE(options.drawing.panelFolder.has_value());
    EXPECT_EQ(options.drawing.language, "");
    EXPECT_EQ(options.selector, "all");
    EXPECT_THAT(options.panels, IsEmpty());
    EXPECT_FALSE(options.isEach);
}

TEST(CommandLine, TakesEveryOptionOfInspect)
{
    const auto options = std::get<InspectOptions>(
        Parse({"inspect", "--select", "name:a b,page:1", "--panel", "a", "--panel", "b", "--each", "--json",
               "--panels", "dir", "--lang", "de", "a.fodg"}));

    EXPECT_EQ(options.drawing.file, "a.fodg");
    EXPECT_EQ(options.selector, "name:a b,page:1");
    EXPECT_THAT(options.panels, ElementsAre("a", "b"));
    EXPECT_TRUE(options.isEach);
    EXPECT_TRUE(options.drawing.isJson);
    EXPECT_EQ(options.drawing.panelFolder, "dir");
    EXPECT_EQ(options.drawing.language, "de");
}

TEST(CommandLine, LeavesTheFileBehindAPanelToItself)
{
    const auto options = std::get<InspectOptions>(Parse({"inspect", "--panel", "a", "b.fodg"}));

    EXPECT_THAT(options.panels, ElementsAre("a"));
    EXPECT_EQ(options.drawing.file, "b.fodg");
}

TEST(CommandLine, TakesTheOptionsOfStyles)
{
    const auto options = std::get<StylesOptions>(Parse({"styles", "a.odg", "--json", "--lang=en"}));

    EXPECT_EQ(options.drawing.file, "a.odg");
    EXPECT_TRUE(options.drawing.isJson);
    EXPECT_EQ(options.drawing.language, "en");
}

TEST(CommandLine, HelpsAtEveryLevelWithAnExample)
{
    EXPECT_THAT(HelpFor({"--help"}), HasSubstr("Example:\n  styleprops inspect"));
    EXPECT_THAT(HelpFor({"inspect", "--help"}), HasSubstr("Example:\n  styleprops inspect"));
    EXPECT_THAT(HelpFor({"styles", "-h"}), HasSubstr("Example:\n  styleprops styles"));
}

TEST(CommandLine, SaysTheWholeUsageOfACommand)
{
    EXPECT_THAT(HelpFor({"inspect", "--help"}), HasSubstr("Usage: styleprops inspect [OPTIONS] FILE"));
}

TEST(CommandLine, TellsTheVersion)
{
    EXPECT_THAT(HelpFor({"--version"}), testing::MatchesRegex("styleprops [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(CommandLine, RefusesWhatItDoesNotKnow)
{
    EXPECT_THAT(ErrorOf({}), HasSubstr("see styleprops --help"));
    EXPECT_THAT(ErrorOf({"paint", "a.fodg"}), HasSubstr("see styleprops --help"));
    EXPECT_THAT(ErrorOf({"inspect"}), StartsWith("FILE is required; see styleprops inspect --help"));
    EXPECT_THAT(ErrorOf({"inspect", "a.fodg", "--colour"}),
                HasSubstr("--colour; see styleprops inspect --help"));
    EXPECT_THAT(ErrorOf({"inspect", "a.fodg", "b.fodg"}), HasSubstr("b.fodg"));
    EXPECT_THAT(ErrorOf({"inspect", "a.fodg", "--select"}), HasSubstr("--select"));
    EXPECT_THAT(ErrorOf({"styles", "a.fodg", "--each"}), HasSubstr("--each; see styleprops styles --help"));
}
