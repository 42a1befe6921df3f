// Scripts: many commands on one open drawing, one save.

#include "tests/cli/EditToolDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using CliTests::ChangesOf;
using CliTests::DrawingOnDisk;
using CliTests::EditedBoxes;
using CliTests::RowOf;
using CliTests::ToolProcess;
using CliTests::ToolResult;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Json = nlohmann::ordered_json;

namespace
{

/// Boxes that are edited by scripts.
class ScriptedBoxes : public EditedBoxes
{
protected:
    /// Runs a script in place that must fail, and expects the drawing to be as it was.
    ///
    /// @returns the line of error without the program and the script in front.
    [[nodiscard]] std::string ErrorOf(const std::string& script) const
    {
        const std::string before = drawing.Bytes();
        const ScratchFolder folder;
        const std::string file = folder.Write("edits.txt", script).string();
        const ToolResult result = Run("edit", {"--script", file, "--in-place"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1) << result.error;
        EXPECT_THAT(result.error, StartsWith("styleprops: " + file + ", "));
        EXPECT_EQ(drawing.Bytes(), before);
        return result.error.substr(std::min(result.error.size(), ("styleprops: " + file + ", ").size()));
    }
};

} // namespace

TEST_F(ScriptedBoxes, HaveWhatAllCommandsLeft)
{
    const Json result = RunScript("# paint\n"
                                  "select name:Other\n"
                                  "set fill.color=tomato outline.width=1mm   # both\n"
                                  "\n"
                                  "select \"name:Box\"\n"
                                  "revert fill.color\n");

    EXPECT_EQ(result.at("steps"), 2);
    EXPECT_THAT(ChangesOf(result), ElementsAre("1/1 fill.color #ff0000 > #3366cc Inherited",
                                               "1/2 fill.color #3366cc > #ff6347 Overridden",
                                               "1/2 outline.width 50 > 100 Overridden"));
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#ff6347 Overridden local");
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#3366cc Inherited style:Base");
}

TEST_F(ScriptedBoxes, BeginWithTheSelectionOfTheCommandLine)
{
    const ScratchFolder folder;
    const std::string script = folder.Write("edits.txt", "set fill.color=#112233\n").string();

    Edit("edit", {"--select", "name:Box", "--script", script});

    EXPECT_EQ(Row("name:Box", "fill", "color"), "#112233 Overridden local");
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#3366cc Inherited style:Base");
}

TEST_F(ScriptedBoxes, ComeFromTheStandardInput)
{
    const ToolResult result = ToolProcess({"edit", drawing.GetFile(), "--script", "-", "--in-place"})
                                  .From("set fill.color=#112233\n")
                                  .Run();
    const ToolResult wrong =
        ToolProcess({"edit", drawing.GetFile(), "--script", "-", "--in-place"}).From("\npaint\n").Run();

    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#112233 Overridden local");
    EXPECT_THAT(wrong.error, StartsWith("styleprops: standard input, line 2: "));
}

TEST_F(ScriptedBoxes, AreByteForByteAsBeforeWhenAllIsUndone)
{
    const std::string before = drawing.Bytes();
    const ScratchFolder folder;
    const std::string script =
        folder
            .Write("edits.txt", "set fill.color=#112233\nselect name:Box\ncreate-style style --name Red\n"
                                "select sheet:Base\nset outline.width=2mm\npalette Sand=#e9c46a\n"
                                "undo\nundo\nundo\nundo\n")
            .string();
    const std::string out = drawing.Beside("out.fodg");

    const Json result = drawing.Json("edit", {"--script", script, "-o", out});

    EXPECT_EQ(result.at("steps"), 0);
    EXPECT_THAT(result.at("changes"), IsEmpty());
    EXPECT_EQ(CliTests::BytesOf(out), before);
}

TEST_F(ScriptedBoxes, AreEditedAgainByRedo)
{
    const Json result = RunScript("set fill.color=#112233\nset outline.width=2mm\nundo\nundo\nredo\n");

    EXPECT_EQ(result.at("steps"), 1);
    EXPECT_EQ(Row("all", "fill", "color"), "#112233 Overridden local");
    EXPECT_EQ(Row("all", "outline", "width"), "50 Inherited style:Base");
}

TEST_F(ScriptedBoxes, ChangeInOneStepForAGroup)
{
    const Json result =
        RunScript("begin-group\nset fill.color=#112233\nset outline.width=2mm\nset fill.color=#445566\n"
                  "end-group\n");

    EXPECT_EQ(result.at("steps"), 1);
    EXPECT_EQ(Row("all", "fill", "color"), "#445566 Overridden local");
    EXPECT_EQ(Row("all", "outline", "width"), "200 Overridden local");
}

TEST_F(ScriptedBoxes, StayAsTheyAreByACancelledGroup)
{
    const Json result =
        RunScript("begin-group\nset fill.color=#112233\nset outline.width=2mm\nend-group --cancel\n");

    EXPECT_EQ(result.at("steps"), 0);
    EXPECT_THAT(result.at("changes"), IsEmpty());
}

TEST_F(ScriptedBoxes, EditTheStyleThatAPanelOpens)
{
    const Json result = RunScript("select name:Other\nedit-style fill\nset fill.color=#010203\n");

    EXPECT_EQ(result.at("answers").dump(), R"([{"line":2,"style":"Base"}])");
    EXPECT_EQ(Row("sheet:Base", "fill", "color"), "#010203 None local");
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#010203 Inherited style:Base");
}

TEST_F(ScriptedBoxes, ShowWhatTheyAreInBetween)
{
    const Json answers =
        RunScript("select name:Other\nshow fill\nset fill.color=#112233\nshow\n").at("answers");

    ASSERT_EQ(answers.size(), 2U);
    EXPECT_EQ(answers.at(0).at("line"), 2);
    EXPECT_EQ(answers.at(0).at("report").at("panels").size(), 1U);
    EXPECT_EQ(RowOf(answers.at(0).at("report"), "fill", "color"), "#3366cc Inherited style:Base");
    EXPECT_EQ(answers.at(1).at("report").at("panels").size(), 5U);
    EXPECT_EQ(RowOf(answers.at(1).at("report"), "fill", "color"), "#112233 Overridden local");
}

TEST_F(ScriptedBoxes, TellPeopleWhatTheCommandsTold)
{
    const ToolResult result = ToolProcess({"edit", drawing.GetFile(), "--script", "-", "--dry-run"})
                                  .From("select name:Box\ncreate-style style --name Red\nshow fill\n")
                                  .Run();

    EXPECT_THAT(result.output,
                StartsWith("New style: Red\n" + drawing.GetFile() + ": 1/1 rect \"Box\": Red < Base\n"));
    EXPECT_THAT(result.output, HasSubstr("\n  ○  Colour        #ff0000  inherited from Red\n"));
    EXPECT_THAT(result.output, HasSubstr("\n\n" + drawing.GetFile() + ": nothing saved (dry run)\n"));
}

TEST_F(ScriptedBoxes, AreNotSavedByAScriptThatIsWrongSomewhere)
{
    EXPECT_THAT(ErrorOf("set fill.color=#112233\n\npaint\n"), StartsWith("line 3: \"paint\" is no command"));
    EXPECT_THAT(ErrorOf("set fill.color=#112233\nset fill.colour=red\n"),
                AllOf(StartsWith("line 2: "), HasSubstr("colour"), HasSubstr("transparency")));
    EXPECT_THAT(ErrorOf("set fill.color=#112233\nselect name:Bax\n"),
                AllOf(StartsWith("line 2: "), HasSubstr("\"Box\"")));
    EXPECT_THAT(ErrorOf("select name:Other\nrevert fill.color\n"),
                AllOf(StartsWith("line 2: "), HasSubstr("Inherited")));
    EXPECT_THAT(ErrorOf("set fill.color=#112233\nundo\nundo\n"),
                StartsWith("line 3: there is no step to undo"));
    EXPECT_THAT(ErrorOf("redo\n"), StartsWith("line 1: there is no step to redo"));
    EXPECT_THAT(ErrorOf("show paint\n"), AllOf(StartsWith("line 1: "), HasSubstr("outline")));
    EXPECT_THAT(ErrorOf("begin-group\nset fill.color=#112233\n"),
                StartsWith("line 1: the group is never closed"));
}

TEST_F(ScriptedBoxes, AreNotEvenOpenedForAScriptThatCannotBeRead)
{
    const ToolResult result =
        CliTests::RunTool({"edit", "/no/such.fodg", "--script", "/no/edits.txt", "--in-place"});

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, StartsWith("styleprops: /no/edits.txt: the script cannot be read"));
}
