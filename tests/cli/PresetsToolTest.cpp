// Presets as the tool keeps and applies them, each time in a process of its own.

#include "tests/cli/EditToolDrawing.h"
#include "tests/workbench/ScratchConfiguration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

using CliTests::ChangesOf;
using CliTests::EditedBoxes;
using CliTests::RunTool;
using CliTests::ToolProcess;
using CliTests::ToolResult;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;
using Json = nlohmann::ordered_json;

namespace
{

const std::string kQuestion = "A preset of this name exists already. Replace it? [y/N] ";

/// The boxes of EditedBoxes, of which "Box" is red, and presets in a folder of the test.
class PresetsOfTheTool : public EditedBoxes
{
protected:
    /// The process "styleprops presets add FILE NAME --panel fill ARGUMENTS".
    [[nodiscard]] ToolProcess Add(const std::string& name,
                                  const std::vector<std::string>& arguments = {}) const
    {
        std::vector<std::string> all = {"presets", "add", drawing.GetFile(), name, "--panel", "fill"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return ToolProcess(all);
    }

    void AddWarm() const { ASSERT_EQ(Add("Warm", {"--select", "name:Box"}).Run().status, 0); }

    [[nodiscard]] static std::vector<std::string> Names(const std::string& panel = "fill")
    {
        const Json list = Json::parse(RunTool({"presets", "list", "--panel", panel, "--json"}).output);
        std::vector<std::string> names;
        for (const Json& preset : list.at("presets"))
            names.push_back(preset.at("name"));
        return names;
    }

    /// The colour of the only preset.
    [[nodiscard]] static std::string ColourOfTheOnlyOne()
    {
        const ToolResult result = RunTool({"presets", "list", "--panel", "fill", "--json"});
        const Json presets = Json::parse(result.output).at("presets");
        return presets.size() == 1 ? presets[0].at("picture").at("fill").at("color") : "not one";
    }

    WorkbenchTests::ScratchConfiguration configuration;
};

} // namespace

TEST_F(PresetsOfTheTool, AreSeenByTheNextProcess)
{
    const ToolResult added = Add("Warm", {"--select", "name:Box"}).Run();
    const ToolResult listed = RunTool({"presets", "list", "--panel", "fill"});

    EXPECT_EQ(added.output, "New preset: Warm\n");
    EXPECT_EQ(added.error, "");
    EXPECT_EQ(added.status, 0);
    EXPECT_EQ(listed.output, "Warm  Colour #ff0000  0.5 mm\n");
    EXPECT_EQ(listed.status, 0);
}

TEST_F(PresetsOfTheTool, AreNoneAtFirst)
{
    EXPECT_EQ(RunTool({"presets", "list", "--panel", "fill"}).output, "fill: no presets\n");
    EXPECT_EQ(Json::parse(RunTool({"presets", "list", "--panel", "fill", "--json"}).output).dump(),
              R"({"panel":"fill","presets":[]})");
}

TEST_F(PresetsOfTheTool, AreShown)
{
    AddWarm();

    const ToolResult text = RunTool({"presets", "show", "Warm", "--panel", "fill"});
    const ToolResult json = RunTool({"presets", "show", "Warm", "--panel", "fill", "--json"});

    EXPECT_THAT(text.output, AllOf(StartsWith("Warm\n"), HasSubstr("#ff0000")));
    EXPECT_EQ(Json::parse(json.output).at("preset"), "Warm");
    EXPECT_EQ(Json::parse(json.output).at("rows").size(), 2U);
    EXPECT_EQ(Json::parse(json.output).at("rows")[1].at("identifier"), "color");
    EXPECT_EQ(Json::parse(json.output).at("rows")[1].at("value"), "#ff0000");
}

TEST_F(PresetsOfTheTool, LeaveTheDrawingThatTheyAreMadeFrom)
{
    const std::string before = drawing.Bytes();

    AddWarm();

    EXPECT_EQ(drawing.Bytes(), before);
}

TEST_F(PresetsOfTheTool, AreAppliedToADrawing)
{
    AddWarm();

    const ToolResult result = RunTool({"presets", "apply", drawing.GetFile(), "Warm", "--panel", "fill",
                                       "--select", "name:Other", "--in-place", "--json"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(ChangesOf(Json::parse(result.output)),
                testing::Contains("1/2 fill.color #3366cc > #ff0000 Overridden"));
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#ff0000 Overridden local");
    EXPECT_EQ(Row("name:Other", "outline", "width"), "50 Inherited style:Base");
}

TEST_F(PresetsOfTheTool, AreDeleted)
{
    AddWarm();

    const ToolResult result = RunTool({"presets", "delete", "Warm", "--panel", "fill"});

    EXPECT_EQ(result.output, "Deleted preset: Warm\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(Names(), testing::IsEmpty());
}

TEST_F(PresetsOfTheTool, BelongToOnePanel)
{
    AddWarm();

    EXPECT_THAT(Names("outline"), testing::IsEmpty());
}

TEST_F(PresetsOfTheTool, AreReplacedAtAYesAtTheTerminal)
{
    AddWarm();

    const ToolResult result = Add("Warm", {"--select", "name:Other"}).From("y\n").Run();

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, kQuestion);
    EXPECT_EQ(result.output, "Replaced preset: Warm\n");
    EXPECT_EQ(ColourOfTheOnlyOne(), "#3366cc");
}

TEST_F(PresetsOfTheTool, AreReplacedInTheWordsOfTheLanguage)
{
    AddWarm();

    const ToolResult result = Add("Warm", {"--select", "name:Other", "--lang", "de"}).From("ja\n").Run();

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, EndsWith("[j/N] "));
    EXPECT_EQ(ColourOfTheOnlyOne(), "#3366cc");
}

TEST_F(PresetsOfTheTool, AreLeftAtAnythingElseAtTheTerminal)
{
    AddWarm();

    for (const char* answer : {"n\n", "\n", ""})
    {
        const ToolResult result = Add("Warm", {"--select", "name:Other"}).From(answer).Run();
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.error, AllOf(StartsWith(kQuestion), HasSubstr("was not to be replaced")));
    }

    EXPECT_EQ(ColourOfTheOnlyOne(), "#ff0000");
}

TEST_F(PresetsOfTheTool, AskNothingWhereItIsSettled)
{
    AddWarm();

    const ToolResult no = Add("Warm", {"--select", "name:Other", "--no"}).From("y\n").Run();
    EXPECT_EQ(no.status, 1);
    EXPECT_THAT(no.error, testing::Not(HasSubstr("?")));
    EXPECT_EQ(ColourOfTheOnlyOne(), "#ff0000");

    const ToolResult yes = Add("Warm", {"--select", "name:Other", "--yes", "--json"}).Run();
    EXPECT_EQ(yes.status, 0);
    EXPECT_EQ(yes.error, "");
    EXPECT_EQ(Json::parse(yes.output).dump(), R"({"panel":"fill","added":"Warm","replaced":true})");
    EXPECT_EQ(ColourOfTheOnlyOne(), "#3366cc");
}

TEST_F(PresetsOfTheTool, AreKnownByNamesAndPanels)
{
    const ToolResult unknown = RunTool({"presets", "show", "Warm", "--panel", "fill"});
    const ToolResult other = RunTool({"presets", "list", "--panel", "style"});

    EXPECT_EQ(unknown.status, 2);
    EXPECT_THAT(unknown.error, HasSubstr("the panel fill has no preset \"Warm\"; expected nothing"));
    EXPECT_EQ(other.status, 2);
    EXPECT_THAT(other.error, HasSubstr("expected one of \"fill\", \"outline\""));
}

TEST_F(PresetsOfTheTool, AreNotMadeFromNamedStyles)
{
    const ToolResult result = Add("Warm", {"--select", "sheet:Base"}).Run();

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("presets are made from objects and default styles"));
    EXPECT_THAT(configuration.PresetFiles(), testing::IsEmpty());
}

TEST_F(PresetsOfTheTool, SayWhatKeepsThemFromBeingKept)
{
    configuration.Obstruct();

    const ToolResult result = Add("Warm").Run();

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.error, HasSubstr((configuration.GetPath() / "presets").string()));
}

TEST_F(PresetsOfTheTool, ArePassedOverWithOneWarningWhenTheyAreDamaged)
{
    AddWarm();
    ASSERT_EQ(Add("Cold").Run().status, 0);
    const std::filesystem::path damaged = configuration.PresetFiles().at(0);
    std::ofstream(damaged) << "no preset";

    const ToolResult result = RunTool({"presets", "list", "--panel", "fill"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, StartsWith("Warm"));
    EXPECT_THAT(result.error, HasSubstr(damaged.filename().string()));
    EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1) << result.error;
}

TEST_F(PresetsOfTheTool, AreAllKeptWhenSeveralProcessesAddThemAtOnce)
{
    constexpr int kProcesses = 4;
    constexpr int kPresetsEach = 3;
    for (int process = 0; process < kProcesses; ++process)
    {
        if (fork() != 0)
            continue;
        int status = Add("shared", {"--yes"}).Run().status;
        for (int number = 0; number < kPresetsEach && status == 0; ++number)
            status = Add("of " + std::to_string(process) + ", " + std::to_string(number)).Run().status;
        _exit(status);
    }

    for (int process = 0; process < kProcesses; ++process)
    {
        int status = -1;
        ASSERT_GT(wait(&status), 0);
        EXPECT_EQ(status, 0);
    }

    EXPECT_THAT(Names(), SizeIs(kProcesses * kPresetsEach + 1));
    EXPECT_EQ(RunTool({"presets", "list", "--panel", "fill"}).error, "");
}

TEST_F(PresetsOfTheTool, AreUsedInScripts)
{
    const Json result = RunScript("select name:Box\n"
                                  "presets add Warm --panel fill\n"
                                  "presets list --panel fill\n"
                                  "presets show Warm --panel fill\n"
                                  "select name:Other\n"
                                  "begin-group\n"
                                  "presets apply Warm --panel fill\n"
                                  "set outline.width=1mm\n"
                                  "end-group\n"
                                  "presets delete Warm --panel fill\n");

    EXPECT_EQ(result.at("steps"), 1);
    ASSERT_EQ(result.at("answers").size(), 4U);
    EXPECT_EQ(result.at("answers")[0].dump(), R"({"line":2,"panel":"fill","added":"Warm","replaced":false})");
    EXPECT_EQ(result.at("answers")[1].at("presets").size(), 1U);
    EXPECT_EQ(result.at("answers")[2].at("preset"), "Warm");
    EXPECT_EQ(result.at("answers")[3].dump(), R"({"line":10,"panel":"fill","deleted":"Warm"})");
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#ff0000 Overridden local");
    EXPECT_THAT(Names(), testing::IsEmpty());
}

TEST_F(PresetsOfTheTool, AreLeftWhereAScriptHasTheTerminal)
{
    AddWarm();

    const ToolResult result = ToolProcess({"edit", drawing.GetFile(), "--script", "-", "--in-place"})
                                  .From("select name:Other\npresets add Warm --panel fill\n")
                                  .Run();

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("standard input, line 2: "));
    EXPECT_EQ(ColourOfTheOnlyOne(), "#ff0000");
}
