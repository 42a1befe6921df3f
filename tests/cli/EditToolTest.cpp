// What the commands that change a drawing leave on disk and report.

#include "tests/cli/EditToolDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using CliTests::BytesOf;
using CliTests::ChangesOf;
using CliTests::DrawingOnDisk;
using CliTests::EditedBoxes;
using CliTests::RunTool;
using CliTests::ToolResult;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Json = nlohmann::ordered_json;

TEST_F(EditedBoxes, HaveTheValuesThatWereSet)
{
    Edit("set",
         {"--select", "name:Other", "fill.color=tomato", "outline.width=0.7mm", "fill.transparency=30%"});

    EXPECT_EQ(Row("name:Other", "fill", "color"), "#ff6347 Overridden local");
    EXPECT_EQ(Row("name:Other", "outline", "width"), "70 Overridden local");
    EXPECT_EQ(Row("name:Other", "fill", "transparency"), "30 Overridden local");
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#ff0000 Overridden local");
    EXPECT_EQ(Row("name:Box", "outline", "width"), "50 Inherited style:Base");
}

TEST_F(EditedBoxes, ReportEveryFieldOfAChangeInOrder)
{
    const Json result = Edit("set", {"--select", "name:Box", "fill.color=#3366cc"});

    EXPECT_EQ(result.dump(), R"({"file":")" + drawing.GetFile() +
                                 R"(","changes":[{"id":"1/1","property":"fill.color","from":"#ff0000",)"
                                 R"("to":"#3366cc","state":"Overridden","fromLink":null,"toLink":null}],)"
                                 R"("steps":1})");
}

TEST_F(EditedBoxes, ReportChangesToPeople)
{
    const std::string out = drawing.Beside("out.fodg");

    const ToolResult result = Run("set", {"outline.width=1mm", "-o", out});

    EXPECT_EQ(result.output, drawing.GetFile() + ": saved as " + out +
                                 "\n"
                                 "  1/1  outline.width  0.5 mm  →  1 mm  local\n"
                                 "  1/2  outline.width  0.5 mm  →  1 mm  local\n");
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(EditedBoxes, AreChangedInOneStep)
{
    const Json result = Edit("set", {"fill.color=#112233", "outline.width=1mm"});

    EXPECT_EQ(result.at("steps"), 1);
    EXPECT_THAT(ChangesOf(result), ElementsAre("1/1 fill.color #ff0000 > #112233 Overridden",
                                               "1/1 outline.width 50 > 100 Overridden",
                                               "1/2 fill.color #3366cc > #112233 Overridden",
                                               "1/2 outline.width 50 > 100 Overridden"));
}

TEST_F(EditedBoxes, MakeAValueTheirOwnThatEqualsTheInheritedOne)
{
    const Json result = Edit("set", {"--select", "name:Other", "fill.color=#3366cc"});

    EXPECT_THAT(ChangesOf(result), ElementsAre("1/2 fill.color #3366cc > #3366cc Overridden"));
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#3366cc Overridden local");
}

TEST_F(EditedBoxes, AreAsBeforeAfterSetAndRevert)
{
    const Json before = Everything();

    Edit("set", {"--select", "name:Other", "fill.color=tomato", "outline.width=2mm"});
    const Json between = Everything();
    Edit("revert", {"--select", "name:Other", "fill.color", "outline.width"});

    EXPECT_NE(between, before);
    EXPECT_EQ(Everything(), before);
}

TEST_F(EditedBoxes, RevertTheWholeStyleOfAPanel)
{
    Edit("set", {"--select", "name:Box", "fill.transparency=30%", "outline.width=2mm"});

    const Json result = Edit("revert", {"--select", "name:Box", "fill"});

    EXPECT_EQ(result.at("steps"), 1);
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#3366cc Inherited style:Base");
    EXPECT_EQ(Row("name:Box", "fill", "transparency"), "null Inherited null");
    EXPECT_EQ(Row("name:Box", "outline", "width"), "200 Overridden local");
}

TEST_F(EditedBoxes, LoseTheirOwnValueByClear)
{
    Edit("clear", {"--select", "name:Box", "fill.color"});

    EXPECT_EQ(Row("name:Box", "fill", "color"), "#3366cc Inherited style:Base");
}

TEST_F(EditedBoxes, GiveTheirValuesToTheParent)
{
    Edit("apply-to-parent", {"--select", "name:Box", "fill.color"});

    EXPECT_EQ(Row("name:Box", "fill", "color"), "#ff0000 Inherited style:Base");
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#ff0000 Inherited style:Base");
    EXPECT_EQ(Row("sheet:Base", "fill", "color"), "#ff0000 None local");
}

TEST_F(EditedBoxes, BecomeExamplesOfANewStyle)
{
    const ToolResult result =
        Run("create-style", {"--select", "name:Box", "style", "--name", "Red box", "--in-place"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, testing::StartsWith("New style: Red box\n"));
    EXPECT_EQ(Row("name:Box", "style", "style"), "Red box Inherited local"); // nothing of its own is left
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#ff0000 Inherited style:Red box");
    EXPECT_EQ(Row("sheet:Red box", "style", "style"), "Base Overridden local");
}

TEST_F(EditedBoxes, TellProgramsTheNameOfANewStyle)
{
    const Json result = Edit("create-style", {"--select", "name:Box", "style", "--name", "Red box"});

    EXPECT_EQ(result.at("created"), "Red box");
    EXPECT_EQ(result.at("steps"), 1);
}

TEST_F(EditedBoxes, TellWhichStyleAPanelOpens)
{
    EXPECT_EQ(Edit("edit-style", {"--select", "name:Box", "fill"}).at("style"), "Base");
    EXPECT_THAT(Run("edit-style", {"--select", "name:Box", "fill", "--dry-run"}).output,
                testing::StartsWith("Opened style: Base\n"));
}

TEST_F(EditedBoxes, TakeTheirParentFromTheStylePanel)
{
    Edit("create-style", {"--select", "name:Box", "style", "--name", "Red box"});

    Edit("set", {"--select", "name:Other", "style.style=Red box"});

    EXPECT_EQ(Row("name:Other", "fill", "color"), "#ff0000 Inherited style:Red box");
}

TEST_F(EditedBoxes, LinkColoursToThePaletteAndBreakTheLinks)
{
    const auto linkOf = [&] { return CliTests::PanelOf(drawing.Report({"--select", "name:Other"}), "fill"); };

    Edit("set", {"--select", "name:Other", "fill.color=palette:Sea"});
    EXPECT_EQ(linkOf().at("rows").at(1).at("link"), "Sea");
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#2a6f97 Overridden local");

    const Json result = Edit("break-link", {"--select", "name:Other", "fill.color"});
    EXPECT_EQ(linkOf().at("rows").at(1).at("link"), nullptr);
    EXPECT_EQ(Row("name:Other", "fill", "color"), "#2a6f97 Overridden local");
    EXPECT_EQ(result.at("changes").at(0).at("fromLink"), "Sea");
    EXPECT_EQ(result.at("changes").at(0).at("toLink"), nullptr);
}

TEST_F(EditedBoxes, FollowTheirEntryOfThePalette)
{
    Edit("set", {"--select", "name:Other", "fill.color=palette:Sea"});

    const Json result = Edit("palette", {"Sea=#010203", "Sand=#e9c46a"});

    EXPECT_EQ(Row("name:Other", "fill", "color"), "#010203 Overridden local");
    EXPECT_EQ(result.at("steps"), 1);
    EXPECT_THAT(ChangesOf(result), Contains("palette:Sea color #2a6f97 > #010203 None"));
    EXPECT_THAT(ChangesOf(result), Contains("palette:Sand color null > #e9c46a None"));
    EXPECT_THAT(ChangesOf(Edit("set", {"--select", "name:Box", "fill.color=palette:Sand"})),
                ElementsAre("1/1 fill.color #ff0000 > #e9c46a Overridden"));
}

TEST_F(EditedBoxes, FollowTheDefaultStyleWhereNothingElseSetsAValue)
{
    const Json result = Edit("set", {"--select", "defaults", "outline.cap=round", "fill.transparency=20%"});

    EXPECT_EQ(Row("name:Other", "outline", "cap"), "round Inherited default");
    EXPECT_EQ(Row("name:Other", "fill", "transparency"), "20 Inherited default");
    EXPECT_EQ(Row("defaults", "outline", "cap"), "round None local");
    EXPECT_THAT(ChangesOf(result), Contains("defaults outline.cap null > round None"));
}

TEST_F(EditedBoxes, FollowTheirNamedStyle)
{
    const Json result = Edit("set", {"--select", "sheet:Base", "fill.color=#010203"});

    EXPECT_EQ(Row("name:Other", "fill", "color"), "#010203 Inherited style:Base");
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#ff0000 Overridden local");
    EXPECT_THAT(ChangesOf(result), Contains("sheet:Base fill.color #3366cc > #010203 None"));
}

TEST_F(EditedBoxes, StayAsTheyAreInADryRunThatReportsTheSame)
{
    const std::string before = drawing.Bytes();

    const Json dry = drawing.Json("set", {"fill.color=#112233", "--dry-run"});

    EXPECT_EQ(drawing.Bytes(), before);
    EXPECT_EQ(dry, Edit("set", {"fill.color=#112233"}));
    EXPECT_THAT(Run("clear", {"fill.color", "--dry-run"}).output, HasSubstr(": nothing saved (dry run)\n"));
}

TEST_F(EditedBoxes, KeepABackupWhenAsked)
{
    const std::string before = drawing.Bytes();
    Edit("set", {"fill.color=#112233"});
    EXPECT_FALSE(std::filesystem::exists(drawing.GetFile() + "~"));
    const std::string between = drawing.Bytes();
    EXPECT_NE(between, before);

    Edit("set", {"fill.color=#445566", "--backup"});

    EXPECT_EQ(BytesOf(drawing.GetFile() + "~"), between);
}

TEST_F(EditedBoxes, AreNotWrittenInPlaceWithoutAChange)
{
    const std::string before = drawing.Bytes();

    const ToolResult result = Run("edit-style", {"--select", "name:Box", "fill", "--in-place", "--backup"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr(": left as it was\n  nothing changed\n"));
    EXPECT_EQ(drawing.Bytes(), before);
    EXPECT_FALSE(std::filesystem::exists(drawing.GetFile() + "~"));
}

TEST_F(EditedBoxes, GoToAnotherFileAndReplaceOneThatIsThere)
{
    const std::string before = drawing.Bytes();
    const std::string out = drawing.Beside("out.fodg");
    std::filesystem::copy_file(drawing.GetFile(), out);

    const ToolResult result = Run("set", {"fill.color=#112233", "-o", out});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(drawing.Bytes(), before);
    EXPECT_THAT(RunTool({"inspect", out, "--panel", "fill"}).output, HasSubstr("#112233"));
}

TEST_F(EditedBoxes, GoToAnotherFileByteForByteWithoutAChange)
{
    const std::string out = drawing.Beside("out.fodg");

    const ToolResult result = Run("edit-style", {"fill", "-o", out});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(BytesOf(out), drawing.Bytes());
}

TEST_F(EditedBoxes, MayBeTheirOwnOutput)
{
    const ToolResult result = Run("set", {"fill.color=#112233", "-o", drawing.GetFile()});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#112233 Overridden local");
}

TEST_F(EditedBoxes, LeaveNothingElseBesideTheFile)
{
    Edit("set", {"fill.color=#112233"});

    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(drawing.Beside("")))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, ElementsAre("drawing.fodg"));
}

TEST_F(EditedBoxes, KeepEveryByteAroundTheValue)
{
    const std::string before = drawing.Bytes();

    Edit("set", {"--select", "name:Box", "fill.color=#00ff00"});

    std::string expected = before;
    expected.replace(expected.find("#ff0000"), 7, "#00ff00");
    EXPECT_EQ(drawing.Bytes(), expected);
}

TEST(EditedEmptyDrawing, TakesColoursIntoItsPalette)
{
    const DrawingOnDisk drawing(FlatDrawing().Page(""));

    const Json result = drawing.Json("palette", {"Deep Sea=navy", "--in-place"});

    EXPECT_THAT(ChangesOf(result), ElementsAre("palette:Deep Sea color null > #000080 None"));
    EXPECT_THAT(ChangesOf(drawing.Json("palette", {"Deep Sea=#000081", "--dry-run"})),
                ElementsAre("palette:Deep Sea color #000080 > #000081 None"));
}
