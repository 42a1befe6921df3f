// The commands about lists of styles and presets, on the command line and in scripts.

#include "apps/cli/CommandLine.h"
#include "apps/cli/EditScript.h"
#include "apps/workbench/UsageError.h"
#include "tests/cli/ParsedArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Cli::AskOptions;
using Cli::EditOptions;
using Cli::InformationText;
using CliTests::ErrorOf;
using CliTests::Parse;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using Workbench::PickById;
using Workbench::PickByMoreId;
using Workbench::PickByName;
using Workbench::PickNone;
using Workbench::StyleListPart;
using Workbench::StylePick;

namespace
{

AskOptions ParseAsk(const std::vector<const char*>& arguments)
{
    return std::get<AskOptions>(Parse(arguments));
}

template <class Kind>
Kind Asked(const std::vector<const char*>& arguments)
{
    return std::get<Kind>(ParseAsk(arguments).command);
}

/// What "restyle a WORDS --panel style --dry-run" picks.
StylePick PickOf(std::vector<const char*> words)
{
    words.insert(words.begin(), {"restyle", "a"});
    words.insert(words.end(), {"--panel", "style", "--dry-run"});
    return std::get<Cli::RestyleCommand>(std::get<EditOptions>(Parse(words)).command).pick;
}

std::string HelpFor(const std::vector<const char*>& arguments)
{
    return std::get<InformationText>(Parse(arguments)).text;
}

/// The one command of a script.
template <class Kind>
Kind InScript(const std::string& line)
{
    return std::get<Kind>(Cli::ParseEditScript("edits", line).commands.at(0).command);
}

std::string ScriptErrorOf(const std::string& text)
{
    try
    {
        static_cast<void>(Cli::ParseEditScript("edits", text));
    }
    catch (const Cli::ScriptError& error)
    {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(StyleListCommandLine, TakesADrawingAPanelAndASelector)
{
    const AskOptions options =
        ParseAsk({"style-list", "a.fodg", "--panel", "fill", "--select", "page:1", "--json"});

    EXPECT_EQ(options.drawing.file, "a.fodg");
    EXPECT_TRUE(options.drawing.isJson);
    EXPECT_EQ(options.selector, "page:1");
    EXPECT_EQ(std::get<Cli::StyleListCommand>(options.command).panel, L"fill");
    EXPECT_EQ(std::get<Cli::StyleListCommand>(options.command).part, StyleListPart::Main);
}

TEST(StyleListCommandLine, TakesTheFurtherStyles)
{
    EXPECT_EQ(Asked<Cli::StyleListCommand>({"style-list", "a", "--panel", "fill", "--more"}).part,
              StyleListPart::More);
}

TEST(StyleListCommandLine, NeedsAPanelAndWritesNoDrawing)
{
    EXPECT_EQ(ErrorOf({"style-list", "a"}), "--panel is required; see styleprops style-list --help");
    EXPECT_THAT(ErrorOf({"style-list", "a", "--panel", "fill", "--in-place"}), HasSubstr("--in-place"));
    EXPECT_THAT(ErrorOf({"style-list", "--panel", "fill"}), StartsWith("FILE is required"));
}

TEST(RestyleCommandLine, TakesOneWayToSayWhichStyle)
{
    EXPECT_EQ(std::get<PickByName>(PickOf({"Blue box"})).name, L"Blue box");
    EXPECT_EQ(std::get<PickById>(PickOf({"--id", "7"})).id, 7U);
    EXPECT_EQ(std::get<PickById>(PickOf({"--id", "0"})).id, 0U);
    EXPECT_EQ(std::get<PickByMoreId>(PickOf({"--more", "--id", "12"})).id, 12U);
    EXPECT_TRUE(std::holds_alternative<PickNone>(PickOf({"--none"})));
}

TEST(RestyleCommandLine, RefusesNoWayAndSeveral)
{
    const std::vector<std::vector<const char*>> several = {
        {"Box", "--none"}, {"Box", "--id", "3"}, {"--id", "3", "--none"}, {"Box", "--id", "3", "--none"}};

    EXPECT_THROW(static_cast<void>(PickOf({})), Workbench::UsageError);
    EXPECT_EQ(ErrorOf({"restyle", "a", "--panel", "style", "--dry-run"}),
              "it is not said which style; expected one of NAME, --id N and --none");
    for (const std::vector<const char*>& words : several)
        EXPECT_THROW(static_cast<void>(PickOf(words)), Workbench::UsageError);
    EXPECT_EQ(ErrorOf({"restyle", "a", "Box", "--none", "--panel", "style", "--dry-run"}),
              "the style is said more than once; expected one of NAME, --id N and --none");
}

TEST(RestyleCommandLine, TakesMoreBesideAnIdAlone)
{
    const std::string refusal = "--more tells which list an id is of; expected --id N beside it";

    EXPECT_EQ(ErrorOf({"restyle", "a", "Box", "--more", "--panel", "style", "--dry-run"}), refusal);
    EXPECT_EQ(ErrorOf({"restyle", "a", "--none", "--more", "--panel", "style", "--dry-run"}), refusal);
}

TEST(RestyleCommandLine, RefusesWhatIsNoId)
{
    for (const char* id : {"-1", "x", "1.5", "99999999999", ""})
        EXPECT_THAT(ErrorOf({"restyle", "a", "--id", id, "--panel", "style", "--dry-run"}),
                    HasSubstr("--id"));
}

TEST(RestyleCommandLine, NeedsAPanelAndAPlaceToWriteTo)
{
    EXPECT_EQ(ErrorOf({"restyle", "a", "Box", "--dry-run"}),
              "--panel is required; see styleprops restyle --help");
    EXPECT_THAT(ErrorOf({"restyle", "a", "Box", "--panel", "style"}),
                AllOf(HasSubstr("expected one of -o OUT, --in-place and --dry-run"),
                      EndsWith("see styleprops restyle --help")));
    EXPECT_THAT(ErrorOf({"restyle", "a", "Box", "Ball", "--panel", "style", "--dry-run"}),
                HasSubstr("NAME: At Most 1"));
}

TEST(PresetsCommandLine, ListsShowsAndDeletesWithoutADrawing)
{
    EXPECT_EQ(Asked<Cli::PresetListCommand>({"presets", "list", "--panel", "fill"}).panel, L"fill");
    EXPECT_EQ(Asked<Cli::PresetShowCommand>({"presets", "show", "Warm", "--panel", "fill"}).name, L"Warm");
    EXPECT_EQ(Asked<Cli::PresetDeleteCommand>({"presets", "delete", "--panel", "fill", "Warm"}).name,
              L"Warm");
    EXPECT_EQ(ParseAsk({"presets", "list", "--panel", "fill", "--json"}).drawing.file, "");
    EXPECT_TRUE(ParseAsk({"presets", "list", "--panel", "fill", "--json"}).drawing.isJson);
}

TEST(PresetsCommandLine, AppliesToADrawing)
{
    const auto options = std::get<EditOptions>(
        Parse({"presets", "apply", "a.odg", "Warm", "--panel", "fill", "--select", "page:1", "-o", "b.odg"}));

    EXPECT_EQ(options.edited.drawing.file, "a.odg");
    EXPECT_EQ(options.edited.output.target, "b.odg");
    EXPECT_EQ(options.edited.selector, "page:1");
    EXPECT_EQ(std::get<Cli::PresetApplyCommand>(options.command).name, L"Warm");
    EXPECT_EQ(std::get<Cli::PresetApplyCommand>(options.command).panel, L"fill");
}

TEST(PresetsCommandLine, AddsFromADrawingThatItOnlyReads)
{
    const AskOptions options =
        ParseAsk({"presets", "add", "a.odg", "Warm", "--panel", "fill", "--select", "id:1/4"});

    EXPECT_EQ(options.drawing.file, "a.odg");
    EXPECT_EQ(options.selector, "id:1/4");
    EXPECT_EQ(std::get<Cli::PresetAddCommand>(options.command).name, L"Warm");
    EXPECT_EQ(std::get<Cli::PresetAddCommand>(options.command).mayReplace, std::nullopt);
    EXPECT_THAT(ErrorOf({"presets", "add", "a.odg", "Warm", "--panel", "fill", "--in-place"}),
                HasSubstr("--in-place"));
}

TEST(PresetsCommandLine, MaySettleWhetherAPresetIsReplaced)
{
    const auto with = [](const char* option) {
        return Asked<Cli::PresetAddCommand>({"presets", "add", "a", "Warm", "--panel", "fill", option});
    };

    EXPECT_EQ(with("--yes").mayReplace, true);
    EXPECT_EQ(with("--no").mayReplace, false);
    EXPECT_EQ(ErrorOf({"presets", "add", "a", "Warm", "--panel", "fill", "--yes", "--no"}),
              "--yes and --no contradict each other; expected at most one of them");
}

TEST(PresetsCommandLine, NamesTheWholeCommandInErrors)
{
    EXPECT_EQ(ErrorOf({"presets", "add", "a", "Warm"}),
              "--panel is required; see styleprops presets add --help");
    EXPECT_THAT(ErrorOf({"presets", "list", "--panel", "fill", "--colour"}),
                EndsWith("see styleprops presets list --help"));
    EXPECT_THAT(ErrorOf({"presets", "apply", "a", "Warm", "--panel", "fill"}),
                EndsWith("see styleprops presets apply --help"));
    EXPECT_THAT(ErrorOf({"presets"}), EndsWith("see styleprops presets --help"));
    EXPECT_THAT(ErrorOf({"presets", "paint"}), EndsWith("see styleprops presets --help"));
}

TEST(PresetsCommandLine, HelpsAtBothLevels)
{
    EXPECT_THAT(HelpFor({"presets", "--help"}),
                AllOf(HasSubstr("Usage: styleprops presets"), HasSubstr("apply"), HasSubstr("delete")));
    EXPECT_THAT(HelpFor({"presets", "add", "--help"}),
                AllOf(HasSubstr("Usage: styleprops presets add [OPTIONS] FILE NAME"),
                      HasSubstr("Example:\n  styleprops presets add sketch.odg Warm")));
    EXPECT_THAT(HelpFor({"restyle", "--help"}),
                AllOf(HasSubstr("--none"), HasSubstr("Example:\n  styleprops restyle")));
    EXPECT_THAT(HelpFor({"--help"}),
                AllOf(HasSubstr("style-list"), HasSubstr("restyle"), HasSubstr("presets")));
}

TEST(StyleCommandsInScripts, AreWrittenAsOnTheCommandLine)
{
    EXPECT_EQ(InScript<Cli::StyleListCommand>("style-list --panel fill --more").part, StyleListPart::More);
    EXPECT_EQ(
        std::get<PickByName>(InScript<Cli::RestyleCommand>("restyle \"Blue box\" --panel style").pick).name,
        L"Blue box");
    EXPECT_EQ(std::get<PickById>(InScript<Cli::RestyleCommand>("restyle --id 3 --panel style").pick).id, 3U);
    EXPECT_EQ(InScript<Cli::PresetListCommand>("presets list --panel fill").panel, L"fill");
    EXPECT_EQ(InScript<Cli::PresetShowCommand>("presets show Warm --panel fill").name, L"Warm");
    EXPECT_EQ(InScript<Cli::PresetApplyCommand>("presets apply Warm --panel fill").name, L"Warm");
    EXPECT_EQ(InScript<Cli::PresetAddCommand>("presets add Warm --panel fill --yes").mayReplace, true);
    EXPECT_EQ(InScript<Cli::PresetDeleteCommand>("presets delete Warm --panel fill").name, L"Warm");
}

TEST(StyleCommandsInScripts, SayHowTheyAreWritten)
{
    EXPECT_THAT(ScriptErrorOf("restyle Box"),
                EndsWith("expected restyle NAME|--id N [--more]|--none --panel PANEL"));
    EXPECT_THAT(ScriptErrorOf("presets add Warm"),
                EndsWith("expected presets add NAME --panel PANEL [--yes|--no]"));
    EXPECT_THAT(ScriptErrorOf("presets"),
                AllOf(HasSubstr("\"presets\" is no command"), HasSubstr("presets list, presets show")));
    EXPECT_THAT(ScriptErrorOf("presets paint --panel fill"), HasSubstr("\"presets\" is no command"));
}

TEST(StyleCommandsInScripts, ChangeTheDrawingInGroupsAndLookOutsideOfThem)
{
    for (const char* command : {"restyle Box --panel style", "presets apply Warm --panel fill"})
        EXPECT_EQ(ScriptErrorOf("begin-group\n" + std::string(command) + "\nend-group"), "no error");
    for (const char* command :
         {"style-list --panel fill", "presets list --panel fill", "presets show W --panel fill",
          "presets add W --panel fill", "presets delete W --panel fill"})
        EXPECT_THAT(ScriptErrorOf("begin-group\n" + std::string(command) + "\nend-group"),
                    StartsWith("edits, line 2: "));
    EXPECT_EQ(ScriptErrorOf("begin-group\npresets list --panel fill\nend-group"),
              "edits, line 2: presets list cannot stand in a group, and there is one since line 1; expected "
              "end-group before it");
}
