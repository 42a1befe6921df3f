// The list of styles and what is picked from it, as the tool runs on drawings.

#include "tests/cli/ToolDrawings.h"
#include "tests/cli/ToolProcess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CliTests::BytesOf;
using CliTests::DrawingOnDisk;
using CliTests::RowOf;
using CliTests::RunTool;
using CliTests::ToolProcess;
using CliTests::ToolResult;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::ordered_json;

namespace
{

/// As many styles S1, S2 and so on, Child which inherits from S1, "A&B", and three boxes that inherit from
/// S1.
FlatDrawing StyledBoxes(int count)
{
    FlatDrawing drawing;
    for (int number = 1; number <= count; ++number)
        drawing.Named("style:name='S" + std::to_string(number) + "'",
                      "<style:graphic-properties svg:stroke-width='0." + std::to_string(number) + "cm'/>");
    return drawing.Named("style:name='Child' style:parent-style-name='S1'")
        .Named("style:name='A_26_B' style:display-name='A&amp;B'")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='S1'", "")
        .Page("<draw:rect draw:name='One' draw:style-name='gr1'/>"
              "<draw:rect draw:name='Two' draw:style-name='gr1'/>"
              "<draw:rect draw:name='Three' draw:style-name='gr1'/>");
}

class StylesOfADrawing : public testing::Test
{
protected:
    /// Runs "styleprops COMMAND FILE --panel style ARGUMENTS".
    [[nodiscard]] ToolResult Run(const std::string& command, const std::vector<std::string>& arguments) const
    {
        return RunTool(With(command, arguments));
    }

    [[nodiscard]] std::vector<std::string> With(const std::string& command,
                                                const std::vector<std::string>& arguments) const
    {
        std::vector<std::string> all = {command, drawing.GetFile(), "--panel", "style"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return all;
    }

    /// What the three boxes inherit from, as a fresh process reads it.
    [[nodiscard]] std::string Styles(const std::string& file) const
    {
        const Json result =
            Json::parse(RunTool({"inspect", file, "--each", "--panel", "style", "--json"}).output);
        std::string styles;
        for (const Json& report : result.at("reports"))
        {
            const Json& style = report.at("selection").at("targets").at(0).at("style");
            styles += (styles.empty() ? "" : " ") + (style.is_null() ? "-" : style.get<std::string>());
        }
        return styles;
    }

    void ExpectRefusal(const ToolResult& result, int status, const std::string& reason) const
    {
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.error, HasSubstr(reason));
        EXPECT_EQ(drawing.Bytes(), before);
    }

    DrawingOnDisk drawing{StyledBoxes(2)};
    const std::string before = drawing.Bytes();
};

class ManyStylesOfADrawing : public StylesOfADrawing
{
protected:
    ManyStylesOfADrawing() : many(StyledBoxes(19)) {}

    [[nodiscard]] ToolProcess Process(const std::string& command,
                                      const std::vector<std::string>& arguments) const
    {
        std::vector<std::string> all = {command, many.GetFile(), "--panel", "style"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return ToolProcess(all);
    }

    DrawingOnDisk many;
};

} // namespace

TEST_F(StylesOfADrawing, AreListedForPeople)
{
    const ToolResult result = Run("style-list", {});

    EXPECT_EQ(result.output, "0     No Style\n1  ✓  S1\n2     S2\n3     Child\n4     A&B\n");
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.status, 0);
}

TEST_F(StylesOfADrawing, AreListedForPrograms)
{
    const ToolResult result = Run("style-list", {"--json"});

    EXPECT_EQ(Json::parse(result.output).dump(),
              R"({"entries":[{"id":0,"text":"No Style","styleName":"","check":false},)"
              R"({"id":1,"text":"S1","styleName":"S1","check":true},)"
              R"({"id":2,"text":"S2","styleName":"S2","check":false},)"
              R"({"id":3,"text":"Child","styleName":"Child","check":false},)"
              R"({"id":4,"text":"A&&B","styleName":"A&&B","check":false}],"more":false})");
    EXPECT_EQ(result.status, 0);
}

TEST_F(StylesOfADrawing, AreListedInTheLanguageThatIsAskedFor)
{
    EXPECT_THAT(Run("style-list", {"--lang", "de"}).output, StartsWith("0     Keine Vorlage\n"));
    EXPECT_THAT(Run("style-list", {"--select", "sheet:S2", "--lang", "de"}).output,
                StartsWith("0  ✓  Keine übergeordnete Vorlage\n"));
}

TEST_F(StylesOfADrawing, SayWhenNothingIsBeyondTheList)
{
    EXPECT_EQ(Run("style-list", {"--more"}).output, "nothing to show\n");
    EXPECT_EQ(Json::parse(Run("style-list", {"--more", "--json"}).output).dump(),
              R"({"entries":[],"more":false})");
}

TEST_F(StylesOfADrawing, AreNotChangedByALook)
{
    static_cast<void>(Run("style-list", {}));

    EXPECT_EQ(drawing.Bytes(), before);
}

TEST_F(ManyStylesOfADrawing, AreNineAndTheEntryThatLeadsOn)
{
    const Json list = Json::parse(Process("style-list", {"--json"}).Run().output);

    EXPECT_EQ(list.at("more"), true);
    EXPECT_EQ(list.at("entries").size(), 11U);
    EXPECT_EQ(list.at("entries").back().dump(),
              R"({"id":10,"text":"More Styles...","styleName":"More Styles...","check":false})");
}

TEST_F(ManyStylesOfADrawing, GoOnFromNine)
{
    const Json list = Json::parse(Process("style-list", {"--json", "--more"}).Run().output);

    EXPECT_EQ(list.at("more"), false);
    EXPECT_EQ(list.at("entries").front().dump(), R"({"id":9,"text":"S10","styleName":"S10","check":false})");
    EXPECT_EQ(list.at("entries").back().dump(), R"({"id":20,"text":"A&B","styleName":"A&B","check":false})");
}

TEST_F(StylesOfADrawing, ReparentTheShapesOfTheSavedDrawing)
{
    const ToolResult result = Run("restyle", {"S2", "--select", "name:T*", "--in-place"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_THAT(result.output, StartsWith("Style: S2\n" + drawing.GetFile() + ": saved\n"));
    EXPECT_EQ(Styles(drawing.GetFile()), "S1 S2 S2");
    EXPECT_EQ(RowOf(drawing.Report({"--select", "name:Two"}), "outline", "width"), "200 Inherited style:S2");
}

TEST_F(StylesOfADrawing, ReparentTheShapesOfAnotherFile)
{
    const std::string out = drawing.Beside("out.fodg");

    EXPECT_EQ(Run("restyle", {"S2", "-o", out}).status, 0);

    EXPECT_EQ(Styles(out), "S2 S2 S2");
    EXPECT_EQ(drawing.Bytes(), before);
}

TEST_F(StylesOfADrawing, CanBePickedBackToTheDrawingAsItLooked)
{
    const Json looks = drawing.Json("inspect", {"--each"});
    ASSERT_EQ(Run("restyle", {"S2", "--in-place"}).status, 0);
    ASSERT_EQ(Run("restyle", {"S1", "--in-place"}).status, 0);

    EXPECT_EQ(drawing.Json("inspect", {"--each"}), looks);
}

TEST_F(StylesOfADrawing, ReparentANamedStyle)
{
    ASSERT_EQ(Run("restyle", {"S1", "--select", "sheet:S2", "--in-place"}).status, 0);

    EXPECT_THAT(RunTool({"styles", drawing.GetFile()}).output, HasSubstr("\n  S2"));
    EXPECT_EQ(RunTool({"style-list", drawing.GetFile(), "--panel", "style", "--select", "sheet:S2"}).output,
              "0     No Parent Style\n1  ✓  S1\n2     Child\n3     A&B\n");
}

TEST_F(StylesOfADrawing, TellProgramsWhatWasPicked)
{
    const Json result =
        Json::parse(Run("restyle", {"S2", "--select", "name:One", "--dry-run", "--json"}).output);

    EXPECT_EQ(result.at("restyled"), "S2");
    EXPECT_EQ(result.at("firstTargetOnly"), false);
    EXPECT_EQ(result.at("steps"), 1);
    EXPECT_FALSE(result.at("changes").empty());
    EXPECT_EQ(drawing.Bytes(), before);
}

TEST_F(StylesOfADrawing, ArePickedByTheIdOfTheList)
{
    ASSERT_EQ(Run("restyle", {"--id", "2", "--in-place"}).status, 0);

    EXPECT_EQ(Styles(drawing.GetFile()), "S2 S2 S2");
}

TEST_F(ManyStylesOfADrawing, ArePickedByTheIdOfTheFurtherList)
{
    ASSERT_EQ(Process("restyle", {"--more", "--id", "9", "--select", "name:One", "--in-place"}).Run().status,
              0);
    ASSERT_EQ(Process("restyle", {"--more", "--id", "12", "--select", "name:Two", "--in-place"}).Run().status,
              0);

    EXPECT_EQ(Styles(many.GetFile()), "S10 S13 S1");
}

TEST_F(ManyStylesOfADrawing, ArePickedByNameFromBeyondTheList)
{
    ASSERT_EQ(Process("restyle", {"S17", "--in-place"}).Run().status, 0);
    EXPECT_EQ(Styles(many.GetFile()), "S17 S17 S17");

    ASSERT_EQ(Process("restyle", {"A&B", "--in-place"}).Run().status, 0);
    EXPECT_EQ(Styles(many.GetFile()), "A&B A&B A&B");
}

TEST_F(ManyStylesOfADrawing, AreChosenAtTheTerminalBehindTheEntryThatLeadsOn)
{
    const ToolResult result = Process("restyle", {"--id", "10", "--in-place"}).From("S99\n14\n").Run();

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, HasSubstr("There is no S99 in this list."));
    EXPECT_EQ(Styles(many.GetFile()), "S15 S15 S15");
}

TEST_F(ManyStylesOfADrawing, StayWhenNoneIsChosenAtTheTerminal)
{
    const ToolResult result = Process("restyle", {"--id", "10", "--in-place"}).Run();

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, EndsWith("no style was chosen\n"));
    EXPECT_EQ(Styles(many.GetFile()), "S1 S1 S1");
}

TEST_F(StylesOfADrawing, AreTakenFromTheFirstShapeAlone)
{
    const ToolResult result = Run("restyle", {"--none", "--in-place"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output,
                StartsWith("Style: none\nOnly the first object of the selection was changed.\n"));
    EXPECT_EQ(Styles(drawing.GetFile()), "- S1 S1");
}

TEST_F(StylesOfADrawing, AreNotPickedTwice)
{
    ExpectRefusal(Run("restyle", {"S1", "--in-place"}), 1, "the first target inherits from it already");
}

TEST_F(StylesOfADrawing, AreNotPickedWithAnAmpersandInTheList)
{
    ExpectRefusal(Run("restyle", {"A&B", "--in-place"}), 1, "its name holds \"&\"");
}

TEST_F(StylesOfADrawing, MakeNoCycle)
{
    ExpectRefusal(Run("restyle", {"Child", "--select", "sheet:S1", "--in-place"}), 1, "inherit from itself");
}

TEST_F(ManyStylesOfADrawing, MakeNoCycleByTheFurtherList)
{
    const std::string bytes = many.Bytes();

    const ToolResult result = Process("restyle", {"Child", "--select", "sheet:S1", "--in-place"}).Run();

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("inherit from itself"));
    EXPECT_EQ(many.Bytes(), bytes);
}

TEST_F(StylesOfADrawing, AreKnownByNamesAndIds)
{
    ExpectRefusal(Run("restyle", {"S9", "--in-place"}), 2,
                  "there is no style \"S9\"; expected one of \"S1\", \"S2\", \"Child\", \"A&B\"");
    ExpectRefusal(Run("restyle", {"--id", "9", "--in-place"}), 2, "has no id 9; expected one from 0 to 4");
    ExpectRefusal(RunTool({"restyle", drawing.GetFile(), "S2", "--panel", "scent", "--in-place"}), 2,
                  "scent");
}

TEST_F(StylesOfADrawing, ArePickedInScripts)
{
    const ScratchFolder folder;
    const std::string edits = folder
                                  .Write("edits", "style-list --panel style\n"
                                                  "begin-group\n"
                                                  "restyle S2 --panel style\n"
                                                  "set fill.color=red\n"
                                                  "end-group\n"
                                                  "select sheet:S2\n"
                                                  "restyle --id 1 --panel style\n")
                                  .string();

    const Json result = drawing.Json("edit", {"--script", edits, "--in-place"});

    EXPECT_EQ(result.at("steps"), 2);
    EXPECT_EQ(result.at("answers").size(), 3U);
    EXPECT_EQ(result.at("answers")[0].at("line"), 1);
    EXPECT_EQ(result.at("answers")[0].at("more"), false);
    EXPECT_EQ(result.at("answers")[1].dump(), R"({"line":3,"restyled":"S2","firstTargetOnly":false})");
    EXPECT_EQ(result.at("answers")[2].dump(), R"({"line":7,"restyled":"S1","firstTargetOnly":false})");
    EXPECT_EQ(Styles(drawing.GetFile()), "S2 S2 S2");
}

TEST_F(StylesOfADrawing, StayWhenALaterCommandOfTheScriptFails)
{
    const ScratchFolder folder;
    const std::string edits =
        folder.Write("edits", "restyle S2 --panel style\nrestyle S2 --panel style\n").string();

    const ToolResult result = RunTool({"edit", drawing.GetFile(), "--script", edits, "--in-place"});

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("line 2: style stays as it is on all"));
    EXPECT_EQ(drawing.Bytes(), before);
}
