// What "styleprops styles" tells, beside the attributes that it comes from.

#include "tests/cli/ToolDrawings.h"
#include "tests/cli/ToolProcess.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CliTests::DrawingOnDisk;
using CliTests::RunTool;
using CliTests::ToolResult;
using Json = nlohmann::ordered_json;

namespace
{

FlatDrawing Sheet()
{
    return FlatDrawing()
        .Named("style:name='Mid_20_One' style:display-name='Middle' style:parent-style-name='Base'",
               "<style:graphic-properties draw:fill-color='#ff0000' draw:shadow='visible'/>"
               "<style:text-properties fo:font-size='12pt'/>")
        .Named("style:name='Base'")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Mid_20_One'",
                   "<style:graphic-properties draw:fill-color='#00ff00'/>")
        .Page("<draw:rect draw:style-name='gr1'/><draw:g><draw:line draw:style-name='gr1'/></draw:g>");
}

} // namespace

TEST(ListedStyles, HaveEveryFieldInOrder)
{
    const DrawingOnDisk drawing(Sheet());

    Json json = drawing.Json("styles");

    EXPECT_EQ(json.at("styles").dump(),
              R"([{"name":"Mid One","displayName":"Middle","parent":"Base","category":"style",)"
              R"("own":["character.size","fill.color"],"users":2,"external":false,"sheet":null},)"
              R"({"name":"Base","displayName":"Base","parent":null,"category":"style","own":[],"users":0,)"
              R"("external":false,"sheet":null}])");
    EXPECT_EQ(json.at("file"), drawing.GetFile());
}

TEST(ListedStyles, StandUnderTheOneTheyInheritFrom)
{
    const DrawingOnDisk drawing(Sheet());

    const ToolResult result = RunTool({"styles", drawing.GetFile()});

    EXPECT_EQ(result.output, "Style               Category  Used by  Sets\n"
                             "Base                style     0\n"
                             "  Mid One (Middle)  style     2        character.size, fill.color\n");
    EXPECT_EQ(result.status, 0);
}

TEST(ListedStyles, HaveGermanHeadings)
{
    const DrawingOnDisk drawing(Sheet());

    EXPECT_THAT(RunTool({"styles", drawing.GetFile(), "--lang", "de"}).output,
                testing::StartsWith("Vorlage             Kategorie  Benutzt von  Setzt\n"));
}

TEST(ListedStyles, CountTheCategoriesThatPanelsBring)
{
    const WorkbenchTests::ThirdPartyFolder panels;
    panels.Write("shadow", WorkbenchTests::ShadowDescription());

    const Json json = DrawingOnDisk(Sheet()).Json("styles", {"--panels", panels.GetPath().string()});

    EXPECT_EQ(json.at("styles").at(0).at("own").dump(),
              R"(["character.size","fill.color","shadow.visibility"])");
}

TEST(ListedStyles, NeedNoPanels)
{
    const DrawingOnDisk drawing(Sheet());

    const ToolResult result = CliTests::ToolProcess({"styles", drawing.GetFile(), "--json"})
                                  .With("STYLEPROPS_PANELS", "/no/such/folder")
                                  .Run();

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
}
