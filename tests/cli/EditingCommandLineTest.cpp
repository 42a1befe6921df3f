#include "apps/cli/CommandLine.h"

#include "tests/cli/ParsedArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Cli::EditOptions;
using Cli::ScriptOptions;
using CliTests::ErrorOf;
using CliTests::Parse;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

EditOptions ParseEdit(const std::vector<const char*>& arguments)
{
    return std::get<EditOptions>(Parse(arguments));
}

/// The command that is meant.
template <class Kind>
Kind CommandOf(const std::vector<const char*>& arguments)
{
    return std::get<Kind>(ParseEdit(arguments).command);
}

} // namespace

TEST(EditingCommandLine, TakesRowsAndValuesAmongItsOptions)
{
    const auto options = ParseEdit({"set", "a.fodg", "fill.color=#3366cc", "--select", "page:1", "-o",
                                    "b.fodg", "paragraph.first-line-indent=-2mm"});

    EXPECT_EQ(options.edited.drawing.file, "a.fodg");
    EXPECT_EQ(options.edited.selector, "page:1");
    EXPECT_EQ(options.edited.output.target, "b.fodg");
    const auto assignments = std::get<Cli::SetCommand>(options.command).assignments;
    ASSERT_EQ(assignments.size(), 2U);
    EXPECT_EQ(assignments[0].row, L"fill.color");
    EXPECT_EQ(assignments[0].value, L"#3366cc");
    EXPECT_EQ(assignments[1].row, L"paragraph.first-line-indent");
    EXPECT_EQ(assignments[1].value, L"-2mm");
}

TEST(EditingCommandLine, TakesEveryCommandThatChangesADrawing)
{
    EXPECT_THAT(CommandOf<Cli::ClearCommand>({"clear", "a", "fill.color", "fill.type", "--dry-run"}).rows,
                ElementsAre(L"fill.color", L"fill.type"));
    EXPECT_THAT(CommandOf<Cli::RevertCommand>({"revert", "a", "fill", "--dry-run"}).rowsOrPanels,
                ElementsAre(L"fill"));
    EXPECT_THAT(
        CommandOf<Cli::ApplyToParentCommand>({"apply-to-parent", "a", "fill", "--dry-run"}).rowsOrPanels,
        ElementsAre(L"fill"));
    EXPECT_THAT(CommandOf<Cli::BreakLinkCommand>({"break-link", "a", "fill.color", "--dry-run"}).rows,
                ElementsAre(L"fill.color"));
    EXPECT_EQ(CommandOf<Cli::EditStyleCommand>({"edit-style", "a", "fill", "--dry-run"}).panel, L"fill");
}

TEST(EditingCommandLine, TakesANameForANewStyle)
{
    const auto named =
        CommandOf<Cli::CreateStyleCommand>({"create-style", "a", "style", "--name", "Blue box", "--dry-run"});
    const auto unnamed = CommandOf<Cli::CreateStyleCommand>({"create-style", "a", "style", "--dry-run"});

    EXPECT_EQ(named.panel, L"style");
    EXPECT_EQ(named.name, L"Blue box");
    EXPECT_EQ(unnamed.name, std::nullopt);
}

TEST(EditingCommandLine, SplitsAValueAtItsFirstAndAColourAtItsLastEqualsSign)
{
    const auto set = CommandOf<Cli::SetCommand>({"set", "a", "character.font=A=B", "--dry-run"});
    const auto palette = CommandOf<Cli::PaletteCommand>({"palette", "a", "A=B=#fff", "--dry-run"});

    EXPECT_EQ(set.assignments.at(0).row, L"character.font");
    EXPECT_EQ(set.assignments.at(0).value, L"A=B");
    EXPECT_EQ(palette.colours.at(0).name, L"A=B");
    EXPECT_EQ(palette.colours.at(0).colour, L"#fff");
}

TEST(EditingCommandLine, TakesAnEmptyValueAndOneInBrackets)
{
    const auto assignments =
        CommandOf<Cli::SetCommand>({"set", "a", "style.style=", "fill.bitmap=[x]", "--dry-run"}).assignments;

    EXPECT_EQ(assignments.at(0).value, L"");
    EXPECT_EQ(assignments.at(1).value, L"[x]");
}

TEST(EditingCommandLine, ChangesEverythingByDefault)
{
    EXPECT_EQ(ParseEdit({"clear", "a.fodg", "fill.color", "--dry-run"}).edited.selector, "all");
}

TEST(EditingCommandLine, TakesEveryOptionOfADrawing)
{
    const auto edited = ParseEdit({"clear", "a", "fill.color", "--in-place", "--backup", "--json", "--panels",
                                   "dir", "--lang", "de"})
                            .edited;

    EXPECT_TRUE(edited.output.isInPlace);
    EXPECT_TRUE(edited.output.keepsBackup);
    EXPECT_FALSE(edited.output.isDryRun);
    EXPECT_TRUE(edited.drawing.isJson);
    EXPECT_EQ(edited.drawing.panelFolder, "dir");
    EXPECT_EQ(edited.drawing.language, "de");
}

TEST(EditingCommandLine, TakesAScript)
{
    const auto options = std::get<ScriptOptions>(
        Parse({"edit", "a.fodg", "--script", "-", "--select", "kind:rect", "--output", "b.fodg"}));

    EXPECT_EQ(options.script, "-");
    EXPECT_EQ(options.edited.selector, "kind:rect");
    EXPECT_EQ(options.edited.output.target, "b.fodg");
}

TEST(EditingCommandLine, WantsExactlyOnePlaceToWriteTo)
{
    EXPECT_THAT(
        ErrorOf({"clear", "a", "fill.color"}),
        AllOf(HasSubstr("it is not said where to write"),
              HasSubstr("expected one of -o OUT, --in-place and --dry-run; see styleprops clear --help")));
    for (const std::vector<const char*>& both : {std::vector<const char*>{"-o", "b", "--in-place"},
                                                 {"-o", "b", "--dry-run"},
                                                 {"--in-place", "--dry-run"}})
    {
        std::vector<const char*> arguments = {"clear", "a", "fill.color"};
        arguments.insert(arguments.end(), both.begin(), both.end());
        EXPECT_THAT(ErrorOf(arguments), HasSubstr("one place only"));
    }
    EXPECT_THAT(ErrorOf({"edit", "a", "--script", "b"}), HasSubstr("see styleprops edit --help"));
}

TEST(EditingCommandLine, LeavesTheStandardOutputToTheReport)
{
    EXPECT_THAT(ErrorOf({"clear", "a", "fill.color", "-o", "-"}), HasSubstr("expected a file"));
}

TEST(EditingCommandLine, KeepsABackupInPlaceOnly)
{
    EXPECT_THAT(ErrorOf({"clear", "a", "fill.color", "-o", "b", "--backup"}), HasSubstr("beside --in-place"));
    EXPECT_THAT(ErrorOf({"clear", "a", "fill.color", "--dry-run", "--backup"}),
                HasSubstr("beside --in-place"));
}

TEST(EditingCommandLine, ForcesWhereSomethingIsWrittenOnly)
{
    EXPECT_FALSE(ParseEdit({"clear", "a", "fill.color", "-o", "b"}).edited.output.isForced);
    EXPECT_TRUE(ParseEdit({"clear", "a", "fill.color", "-o", "b", "--force"}).edited.output.isForced);
    EXPECT_THAT(ErrorOf({"clear", "a", "fill.color", "--dry-run", "--force"}), HasSubstr("beside -o OUT"));
}

TEST(EditingCommandLine, RefusesWhatIsNotOfACommand)
{
    EXPECT_THAT(ErrorOf({"set", "a", "--dry-run"}), HasSubstr("see styleprops set --help"));
    EXPECT_THAT(ErrorOf({"set", "a", "fill.color", "--dry-run"}),
                HasSubstr("\"fill.color\" names nothing to change; expected ROW=VALUE"));
    EXPECT_THAT(ErrorOf({"set", "a", "=red", "--dry-run"}), HasSubstr("expected ROW=VALUE"));
    EXPECT_THAT(ErrorOf({"edit-style", "a", "fill", "outline", "--dry-run"}),
                HasSubstr("At Most 1 required"));
    EXPECT_THAT(ErrorOf({"clear", "a", "fill.color", "--name", "b", "--dry-run"}), HasSubstr("--name"));
    EXPECT_THAT(ErrorOf({"edit", "a", "--dry-run"}), HasSubstr("--script is required"));
    EXPECT_THAT(ErrorOf({"undo", "a", "--dry-run"}), HasSubstr("see styleprops --help"));
    EXPECT_THAT(ErrorOf({"set", "a", "fill.bitmap=caf\xE9", "--dry-run"}), HasSubstr("valid UTF-8"));
}

TEST(EditingCommandLine, HelpsWithAnExampleOfEachCommand)
{
    for (const char* command : {"set", "clear", "revert", "apply-to-parent", "break-link", "create-style",
                                "edit-style", "palette", "edit"})
    {
        const std::string help = std::get<Cli::InformationText>(Parse({command, "--help"})).text;
        EXPECT_THAT(help, HasSubstr(std::string("Usage: styleprops ") + command + " [OPTIONS] FILE"));
        EXPECT_THAT(help, HasSubstr(std::string("Example:\n  styleprops ") + command + " sketch.odg"));
    }
}
