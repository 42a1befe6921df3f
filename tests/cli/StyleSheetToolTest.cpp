// What the tool does with drawings that link to style sheets.

#include "tests/cli/ToolDrawings.h"
#include "tests/cli/ToolProcess.h"
#include "tests/reference_host/document/SheetFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CliTests::RunTool;
using CliTests::ToolResult;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

class DrawingsWithASheet : public testing::Test
{
protected:
    DrawingsWithASheet()
    {
        folder.Write("house.fodg", HouseSheet());
        folder.Write("locked.fodg", LinkedDrawing());
        folder.Write("drawing.fodg", EditingDrawing());
    }

    ToolResult Run(std::vector<std::string> arguments, const std::string& drawing = "drawing.fodg")
    {
        arguments.insert(arguments.begin() + 1, folder.PathOf(drawing).string());
        return RunTool(arguments);
    }

    SheetFolder folder;
    const std::string sheetBefore = HouseSheet().Text();
};

} // namespace

TEST_F(DrawingsWithASheet, ListItsStylesAsExternal)
{
    EXPECT_EQ(Run({"styles"}).output,
              "Style                                      Category  Used by  Sets\n"
              "House Base [external]                      style     0        fill.color, outline.width\n"
              "  Note                                     style     1        fill.color\n"
              "  House Box (Box of the house) [external]  style     1        fill.color\n"
              "House Ink [external]                       fill      0        fill.color\n");
}

TEST_F(DrawingsWithASheet, ListTheSheetForPrograms)
{
    const std::string output = Run({"styles", "--json"}).output;

    EXPECT_THAT(output, HasSubstr(R"("name":"Note","displayName":"Note","parent":"House Base")"));
    EXPECT_THAT(output, HasSubstr(R"("users":1,"external":false,"sheet":null})"));
    EXPECT_THAT(output, HasSubstr(R"("users":1,"external":true,"sheet":"House"})"));
}

TEST_F(DrawingsWithASheet, ShowWhereTheValuesComeFrom)
{
    const ToolResult result = Run({"inspect", "--select", "name:Box", "--panel", "fill"});

    EXPECT_THAT(result.output, HasSubstr("1/1 rect \"Box\": House Box < House Base\n"));
    EXPECT_THAT(result.output, HasSubstr("#00aa00  inherited from House Box\n"));
    EXPECT_EQ(result.status, 0);
}

TEST_F(DrawingsWithASheet, SaveItWithTheDrawing)
{
    const ToolResult result =
        Run({"set", "--select", "sheet:House Box", "fill.color=#010203", "--in-place", "--backup"});

    EXPECT_EQ(result.output, folder.PathOf("drawing.fodg").string() + ": saved\n" +
                                 folder.PathOf("house.fodg").string() + ": style sheet saved\n" +
                                 "  sheet:House Box  fill.color  #00aa00  →  #010203  local\n");
    EXPECT_THAT(result.error, IsEmpty());
    EXPECT_THAT(folder.Bytes("house.fodg"), HasSubstr("draw:fill-color='#010203'"));
    EXPECT_EQ(folder.Bytes("house.fodg~"), sheetBefore);
}

TEST_F(DrawingsWithASheet, SaveItInItsPlaceWhenTheyGoElsewhere)
{
    const std::string copy = folder.PathOf("other/copy.fodg").string();

    const ToolResult result = Run({"apply-to-parent", "--select", "name:Box", "outline.width", "-o", copy});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(folder.Bytes("house.fodg"), HasSubstr("svg:stroke-width=\"2mm\""));
    EXPECT_EQ(folder.Bytes("drawing.fodg"), EditingDrawing().Text());
    EXPECT_THAT(RunTool({"inspect", copy, "--select", "name:Box", "--panel", "outline"}).output,
                HasSubstr("2 mm     inherited from House Box\n"));
}

TEST_F(DrawingsWithASheet, LeaveItAloneInADryRun)
{
    const ToolResult result = Run({"set", "--select", "sheet:House Box", "fill.color=#010203", "--dry-run"});

    EXPECT_THAT(result.output, HasSubstr("#00aa00  →  #010203"));
    EXPECT_EQ(folder.Bytes("house.fodg"), sheetBefore);
}

TEST_F(DrawingsWithASheet, RefuseEditsOfItWithoutALink)
{
    const ToolResult result =
        Run({"set", "--select", "sheet:House Box", "fill.color=#010203", "--in-place"}, "locked.fodg");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.error,
              "styleprops: fill.color cannot be edited on sheet:House Box: the style comes from "
              "the style sheet \"House\", which the drawing does not let be edited\n");
    EXPECT_EQ(folder.Bytes("house.fodg"), sheetBefore);
    EXPECT_EQ(folder.Bytes("locked.fodg"), LinkedDrawing().Text());
}

TEST_F(DrawingsWithASheet, OpenWithAWarningWhenItIsMissing)
{
    std::filesystem::remove(folder.PathOf("house.fodg"));

    const ToolResult result = Run({"styles"});

    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("Note   style"));
    EXPECT_THAT(
        result.error,
        HasSubstr("styleprops: warning: " + folder.PathOf("drawing.fodg").string() +
                  ", style sheet \"House\": " + folder.PathOf("house.fodg").string() +
                  ": the file does not exist; expected an OpenDocument drawing; its styles are missing\n"));
}
