// Bad input, wrong usage, and output that cannot be written: one line each, and never half a report.

#include "tests/cli/ToolDrawings.h"
#include "tests/cli/ToolProcess.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using CliTests::DrawingOnDisk;
using CliTests::OutputKind;
using CliTests::RunTool;
using CliTests::ToolProcess;
using CliTests::ToolResult;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

FlatDrawing OneBox()
{
    return FlatDrawing()
        .Named("style:name='Base'")
        .Page("<draw:rect draw:name='Box' draw:style-name='Base'/>");
}

/// Expects nothing on the standard output and one line on the standard error.
void ExpectOneErrorLine(const ToolResult& result)
{
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.error, StartsWith("styleprops: "));
    EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1) << result.error;
}

} // namespace

TEST(BadInput, EndsWithOneWhenTheFileIsMissing)
{
    const ToolResult result = RunTool({"inspect", "/no/such.fodg", "--json"});

    EXPECT_EQ(result.status, 1);
    ExpectOneErrorLine(result);
    EXPECT_THAT(result.error, HasSubstr("/no/such.fodg"));
}

TEST(BadInput, EndsWithOneAndNamesTheLineOfABrokenFile)
{
    const ScratchFolder folder;
    const std::string file = folder.Write("broken.fodg", "<office:document\n  <").string();

    const ToolResult result = RunTool({"styles", file});

    EXPECT_EQ(result.status, 1);
    ExpectOneErrorLine(result);
    EXPECT_THAT(result.error, HasSubstr(file + ", line 2"));
}

TEST(BadInput, EndsWithOneAndSaysWhatTheFileIs)
{
    const ScratchFolder folder;
    std::string text = FlatDrawing().Page("").Text();
    const std::string drawing = "opendocument.graphics";
    text.replace(text.find(drawing), drawing.size(), "opendocument.presentation");
    const std::string file = folder.Write("talk.fodp", text).string();

    const ToolResult result = RunTool({"inspect", file});

    EXPECT_EQ(result.status, 1);
    ExpectOneErrorLine(result);
    EXPECT_THAT(result.error, HasSubstr("presentation"));
}

TEST(BadInput, EndsWithOneWhenNothingFitsTheSelector)
{
    const DrawingOnDisk drawing(OneBox());

    const ToolResult result = RunTool({"inspect", drawing.GetFile(), "--select", "name:Bax", "--json"});

    EXPECT_EQ(result.status, 1);
    ExpectOneErrorLine(result);
    EXPECT_EQ(result.error,
              "styleprops: " + drawing.GetFile() +
                  ": nothing fits the selector \"name:Bax\"; expected one of the names \"Box\"\n");
}

TEST(BadInput, EndsWithOneWithoutTheChosenPanelFolder)
{
    const DrawingOnDisk drawing(OneBox());

    const ToolResult chosen = RunTool({"inspect", drawing.GetFile(), "--panels", "/no/panels"});
    const ToolResult forStyles = RunTool({"styles", drawing.GetFile(), "--panels", "/no/panels"});
    const ToolResult fromEnvironment =
        ToolProcess({"inspect", drawing.GetFile()}).With("STYLEPROPS_PANELS", "/no/panels").Run();

    for (const ToolResult& result : {chosen, forStyles, fromEnvironment})
    {
        EXPECT_EQ(result.status, 1);
        ExpectOneErrorLine(result);
        EXPECT_THAT(result.error, HasSubstr("/no/panels: there is no such folder"));
    }
}

TEST(BadInput, OfOnePanelIsReportedAndLeavesTheOthers)
{
    const DrawingOnDisk drawing(OneBox());
    const WorkbenchTests::ThirdPartyFolder panels;
    const std::string broken = panels.Write("broken", "<panel name='x'>\n").string();
    panels.Write("shadow", WorkbenchTests::ShadowDescription());

    const ToolResult result =
        RunTool({"inspect", drawing.GetFile(), "--panels", panels.GetPath().string(), "--json"});

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, StartsWith("styleprops: " + broken + ", line 2"));
    const auto json = nlohmann::ordered_json::parse(result.output);
    EXPECT_EQ(json.at("reports").at(0).at("panels").size(), 1U);
}

TEST(BadInput, OfOneModuleIsReportedAndLeavesTheOthers)
{
    const DrawingOnDisk drawing(OneBox());
    const WorkbenchTests::ThirdPartyFolder panels;
    panels.Write("bad", WorkbenchTests::DescriptionOf("bad", "FailingPanelDatasource"));
    panels.Write("shadow", WorkbenchTests::ShadowDescription());

    const ToolResult result =
        RunTool({"inspect", drawing.GetFile(), "--panels", panels.GetPath().string(), "--json"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.error,
              "styleprops: " + (panels.GetPath() / "third-party.so").string() +
                  ": its class FailingPanelDatasource cannot be made: the licence of this panel has run "
                  "out; expected a panel that can be made in every drawing\n");
    const auto json = nlohmann::ordered_json::parse(result.output);
    EXPECT_EQ(json.at("reports").at(0).at("panels").at(0).at("panel"), "shadow");
}

TEST(BadInput, OfAModuleThatIsNotAskedForDoesNotMatter)
{
    const DrawingOnDisk drawing(OneBox());
    const WorkbenchTests::ThirdPartyFolder panels;
    panels.Write("bad", WorkbenchTests::DescriptionOf("bad", "FailingPanelDatasource"));
    panels.Write("shadow", WorkbenchTests::ShadowDescription());

    const ToolResult result =
        RunTool({"inspect", drawing.GetFile(), "--panels", panels.GetPath().string(), "--panel", "shadow"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
}

TEST(RepairedInput, IsWarnedAboutAndReported)
{
    const DrawingOnDisk drawing(
        FlatDrawing().Named("style:name='Base' style:parent-style-name='Gone'").Page(""));

    const ToolResult result = RunTool({"styles", drawing.GetFile(), "--json"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, StartsWith("styleprops: warning: "));
    EXPECT_THAT(result.error, HasSubstr("Gone"));
}

TEST(WrongUsage, EndsWithTwo)
{
    const DrawingOnDisk drawing(OneBox());
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"paint", drawing.GetFile()},
        {"inspect"},
        {"inspect", drawing.GetFile(), "--colour"},
        {"inspect", drawing.GetFile(), "--select"},
        {"inspect", drawing.GetFile(), "--select", "colour:red"},
        {"inspect", drawing.GetFile(), "--select", "page:one"},
        {"inspect", drawing.GetFile(), "--panel", "paint"},
        {"inspect", drawing.GetFile(), "--lang", "xx"}};

    for (const std::vector<std::string>& arguments : wrong)
    {
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        ExpectOneErrorLine(result);
    }
}

TEST(WrongUsage, SaysWhichPanelsThereAre)
{
    const DrawingOnDisk drawing(OneBox());

    const ToolResult result = RunTool({"inspect", drawing.GetFile(), "--panel", "paint"});

    EXPECT_EQ(result.error,
              "styleprops: there is no panel \"paint\"; expected one of style, fill, outline, character, "
              "paragraph\n");
}

TEST(WrongUsage, SaysWhichLanguagesThereAre)
{
    const DrawingOnDisk drawing(OneBox());

    const ToolResult result = RunTool({"styles", drawing.GetFile(), "--lang", "xx"});

    EXPECT_EQ(result.error,
              "styleprops: there are no texts in the language \"xx\"; expected one of en, de\n");
}

TEST(OutputThatCannotBeWritten, EndsWithOne)
{
    const DrawingOnDisk drawing(OneBox());

    const ToolResult closed =
        ToolProcess({"inspect", drawing.GetFile(), "--json"}).To(OutputKind::ClosedPipe).Run();
    const ToolResult full =
        ToolProcess({"inspect", drawing.GetFile(), "--json"}).To(OutputKind::FullDevice).Run();

    EXPECT_EQ(closed.status, 1);
    EXPECT_THAT(closed.error, StartsWith("styleprops: cannot write the output"));
    EXPECT_EQ(full.status, 1);
    EXPECT_THAT(full.error, StartsWith("styleprops: cannot write the output"));
}

TEST(Information, GoesToTheStandardOutput)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--help"}, {"inspect", "--help"}, {"styles", "--help"}, {"--version"}})
    {
        const ToolResult result = RunTool(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.error, "");
        EXPECT_THAT(result.output, EndsWith("\n"));
    }
}

TEST(FileNamesThatAreNoUtf8, DoNotSpoilTheJson)
{
    const ScratchFolder folder;
    const std::string file = folder.Write("caf\xE9.fodg", OneBox().Text()).string();

    const ToolResult result = RunTool({"styles", file, "--json"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(nlohmann::ordered_json::parse(result.output).at("file").get<std::string>(),
                EndsWith("caf\uFFFD.fodg"));
}
