// What "styleprops inspect --json" tells, with the shipped panels, beside the attributes that it comes from.

#include "tests/cli/ToolDrawings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CliTests::DrawingOnDisk;
using CliTests::IdsOf;
using CliTests::PanelOf;
using CliTests::RowOf;
using testing::ElementsAre;
using testing::IsEmpty;
using Json = nlohmann::ordered_json;

namespace
{

/// A chain of styles that reaches into every panel, and one shape that sets some of it itself.
FlatDrawing Chain()
{
    return FlatDrawing()
        .Fonts("<style:font-face style:name='Body' svg:font-family='DejaVu Sans'/>")
        .Styles("<draw:gradient draw:name='Deep_20_Sea' draw:display-name='Deep Sea'/>"
                "<draw:stroke-dash draw:name='Long'/><draw:marker draw:name='Flow'/>")
        .Defaults("<style:graphic-properties svg:stroke-linecap='round'/>"
                  "<style:paragraph-properties fo:line-height='120%'/>"
                  "<style:text-properties style:font-name='Body' fo:letter-spacing='0.1cm'/>")
        .Named("style:name='standard'",
               "<style:graphic-properties draw:fill='gradient' draw:fill-gradient-name='Deep_20_Sea'"
               " draw:stroke='dash' draw:stroke-dash='Long' svg:stroke-color='#112233' "
               "svg:stroke-opacity='80%'/>"
               "<style:paragraph-properties fo:text-align='center' fo:margin-left='0.5cm' "
               "fo:text-indent='-2mm'/>"
               "<style:text-properties fo:font-size='18pt' fo:font-weight='700' fo:font-style='italic'/>")
        .Named("style:name='Mid_20_One' style:parent-style-name='standard'",
               "<style:graphic-properties draw:fill-color='#3366CC' svg:stroke-width='0.35cm'"
               " draw:stroke-linejoin='bevel' draw:marker-start='Flow'/>"
               "<style:paragraph-properties fo:margin-top='1mm'/><style:text-properties fo:color='#ff0000'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Mid_20_One'",
                   "<style:graphic-properties draw:opacity='70%' draw:marker-end='Flow'/>")
        .Automatic("paragraph", "style:name='P1'",
                   "<style:paragraph-properties fo:margin-bottom='0.4cm' fo:margin-right='1cm'/>")
        .Automatic(
            "text", "style:name='T1'",
            "<style:text-properties style:text-underline-style='wave' style:text-line-through-style='solid'"
            " fo:font-size='10.5pt'/>")
        .Page("<draw:rect draw:name='Box' draw:style-name='gr1'><text:p text:style-name='P1'>"
              "<text:span text:style-name='T1'>word</text:span></text:p></draw:rect>");
}

/// Two rectangles that agree in some values, differ in others, and one of which is set by one alone.
FlatDrawing Pair()
{
    return FlatDrawing()
        .Named("style:name='Base'",
               "<style:graphic-properties draw:fill-color='#3366cc' svg:stroke-width='1mm'/>")
        .Named("style:name='Twin'", "<style:graphic-properties draw:fill-color='#3366cc'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                   "<style:graphic-properties draw:opacity='70%'/>")
        .Automatic("graphic", "style:name='gr2' style:parent-style-name='Twin'",
                   "<style:graphic-properties svg:stroke-width='2mm'/>")
        .Page("<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='gr2'/>");
}

} // namespace

TEST(InspectedObject, IsDescribedWithItsStyleAndItsAncestors)
{
    const Json selection = DrawingOnDisk(Chain()).Report().at("selection");

    EXPECT_EQ(selection.dump(), R"({"selector":"all","targets":[{"id":"1/1","name":"Box","kind":"rect",)"
                                R"("style":"Mid One","parents":["standard"],"units":2}]})");
}

TEST(InspectedObject, ShowsItsFill)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--panel", "fill"});

    EXPECT_EQ(RowOf(report, "fill", "type"), "gradient Inherited style:standard"); // draw:fill='gradient'
    EXPECT_EQ(RowOf(report, "fill", "color"), "#3366cc Inherited style:Mid One"); // draw:fill-color='#3366CC'
    EXPECT_EQ(RowOf(report, "fill", "transparency"), "30 Overridden local");      // draw:opacity='70%' of gr1
    EXPECT_EQ(RowOf(report, "fill", "gradient"),
              "Deep Sea Inherited style:standard");                    // its draw:display-name
    EXPECT_EQ(RowOf(report, "fill", "hatch"), "null Inherited null");  // nowhere
    EXPECT_EQ(RowOf(report, "fill", "bitmap"), "null Inherited null"); // nowhere
}

TEST(InspectedObject, ShowsItsOutline)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--panel", "outline"});

    EXPECT_EQ(RowOf(report, "outline", "type"), "dash Inherited style:standard");     // draw:stroke='dash'
    EXPECT_EQ(RowOf(report, "outline", "color"), "#112233 Inherited style:standard"); // svg:stroke-color
    EXPECT_EQ(RowOf(report, "outline", "width"), "350 Inherited style:Mid One"); // svg:stroke-width='0.35cm'
    EXPECT_EQ(RowOf(report, "outline", "transparency"),
              "20 Inherited style:standard");                                     // svg:stroke-opacity='80%'
    EXPECT_EQ(RowOf(report, "outline", "dash"), "Long Inherited style:standard"); // draw:stroke-dash
    EXPECT_EQ(RowOf(report, "outline", "join"), "bevel Inherited style:Mid One"); // draw:stroke-linejoin
    EXPECT_EQ(RowOf(report, "outline", "cap"),
              "round Inherited default"); // svg:stroke-linecap of the default style
    EXPECT_EQ(RowOf(report, "outline", "start-arrow"), "Flow Inherited style:Mid One"); // draw:marker-start
    EXPECT_EQ(RowOf(report, "outline", "end-arrow"), "Flow Overridden local"); // draw:marker-end of gr1
}

TEST(InspectedObject, ShowsTheCharactersOfItsText)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--panel", "character"});

    EXPECT_EQ(RowOf(report, "character", "font"), "DejaVu Sans Inherited default"); // style:font-name='Body'
    EXPECT_EQ(RowOf(report, "character", "size"), "105 Overridden local"); // fo:font-size='10.5pt' of T1
    EXPECT_EQ(RowOf(report, "character", "weight"), "bold Inherited style:standard"); // fo:font-weight='700'
    EXPECT_EQ(RowOf(report, "character", "posture"), "italic Inherited style:standard"); // fo:font-style
    EXPECT_EQ(RowOf(report, "character", "underline"), "wave Overridden local");         // of T1
    EXPECT_EQ(RowOf(report, "character", "strikethrough"), "solid Overridden local");    // of T1
    EXPECT_EQ(RowOf(report, "character", "color"), "#ff0000 Inherited style:Mid One");   // fo:color
    EXPECT_EQ(RowOf(report, "character", "letter-spacing"),
              "100 Inherited default"); // fo:letter-spacing='0.1cm'
}

TEST(InspectedObject, ShowsTheParagraphsOfItsText)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--panel", "paragraph"});

    EXPECT_EQ(RowOf(report, "paragraph", "align"), "center Inherited style:standard");    // fo:text-align
    EXPECT_EQ(RowOf(report, "paragraph", "left-indent"), "500 Inherited style:standard"); // fo:margin-left
    EXPECT_EQ(RowOf(report, "paragraph", "right-indent"), "1000 Overridden local");       // of P1
    EXPECT_EQ(RowOf(report, "paragraph", "first-line-indent"),
              "-200 Inherited style:standard");                                           // fo:text-indent
    EXPECT_EQ(RowOf(report, "paragraph", "space-before"), "100 Inherited style:Mid One"); // fo:margin-top
    EXPECT_EQ(RowOf(report, "paragraph", "space-after"), "400 Overridden local");   // fo:margin-bottom of P1
    EXPECT_EQ(RowOf(report, "paragraph", "line-spacing"), "120 Inherited default"); // fo:line-height
}

TEST(InspectedObject, ShowsItsNamedStyleAsTheParent)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--panel", "style"});

    EXPECT_EQ(RowOf(report, "style", "style"), "Mid One Overridden local");
    EXPECT_EQ(PanelOf(report, "style").at("title"), "Style: Mid One");
}

TEST(InspectedObject, HasEveryFieldOfARowInOrder)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--panel", "fill"});

    EXPECT_EQ(
        PanelOf(report, "fill").at("rows").at(1).dump(),
        R"({"identifier":"color","property":"FillColor","label":"Colour","value":"#3366cc","ambiguous":false,)"
        R"("state":"Inherited","origin":{"kind":"style","style":"Mid One"},"link":null,"image":"InheritedImage",)"
        R"("tooltip":"Inherited from the parent style"})");
}

TEST(InspectedObject, HasEveryFieldOfAPanelInOrder)
{
    const Json panel = PanelOf(DrawingOnDisk(Chain()).Report(), "fill");

    std::vector<std::string> fields;
    for (const auto& field : panel.items())
        fields.push_back(field.key());

    EXPECT_THAT(fields,
                ElementsAre("panel", "title", "hasTargets", "isDefaults", "styleName", "properties", "rows"));
    EXPECT_EQ(panel.at("title"), "Fill: Mid One");
    EXPECT_EQ(panel.at("hasTargets"), true);
    EXPECT_EQ(panel.at("isDefaults"), false);
    EXPECT_EQ(panel.at("styleName"), "");
}

TEST(InspectedObject, HasEveryPropertyThatIsANumberOrATextInOrder)
{
    const Json properties = PanelOf(DrawingOnDisk(Chain()).Report(), "style").at("properties");

    std::vector<std::string> names;
    for (const auto& property : properties.items())
        names.push_back(property.key());

    EXPECT_THAT(names, ElementsAre("ActiveIdentifier", "RevertToParentEnable", "BreakColorResourceEnable",
                                   "ApplyToParentEnable", "CreateStyleFromEnable", "IsObjectStyle", "IsStyle",
                                   "IsStyleOrDefault", "EditStyleEnable", "SectionTitle",
                                   "RevertToMenuString", "ApplyToMenuString", "EditStyleMenuString",
                                   "IsObjectProperties", "BaseStylePropertiesDatasourceOkEnabled",
                                   "EnableStyleEditing", "AddPresetEnabled", "DeletePresetEnabled",
                                   "StyleParentState", "StyleParentAmbiguous", "StyleParentOrigin",
                                   "StyleParentLink", "StyleParentApplyToParentEnable"));
    EXPECT_EQ(properties.at("ActiveIdentifier"), "");
    EXPECT_EQ(properties.at("IsObjectStyle"), 1);
    EXPECT_EQ(properties.at("EnableStyleEditing"), 1);
    EXPECT_EQ(properties.at("SectionTitle"), "Style: Mid One");
}

TEST(InspectedObject, IsEditedInTheContextOfObjectProperties)
{
    const Json properties = PanelOf(DrawingOnDisk(Chain()).Report(), "style").at("properties");

    EXPECT_EQ(properties.at("IsObjectProperties"), 1);
}

TEST(InspectedObject, LinksAColourToItsPaletteEntry)
{
    const DrawingOnDisk drawing(
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#3366cc</meta:user-defined>")
            .Automatic("graphic", "style:name='gr1'",
                       "<style:graphic-properties draw:fill-color='#3366cc' sp:fill-color-resource='Sea'/>")
            .Page("<draw:rect draw:style-name='gr1'/>"));

    const Json rows = PanelOf(drawing.Report(), "fill").at("rows");

    EXPECT_EQ(rows.at(1).at("value"), "#3366cc");
    EXPECT_EQ(rows.at(1).at("link"), "Sea");
}

TEST(InspectedObject, WithoutAParentInheritsNothing)
{
    const DrawingOnDisk drawing(
        FlatDrawing()
            .Automatic("graphic", "style:name='gr1'", "<style:graphic-properties draw:fill-color='#ff0000'/>")
            .Page("<draw:rect draw:style-name='gr1'/>"));

    const Json report = drawing.Report();

    EXPECT_EQ(RowOf(report, "fill", "color"), "#ff0000 None local");
    EXPECT_EQ(RowOf(report, "fill", "type"), "null None null");
    EXPECT_EQ(PanelOf(report, "fill").at("title"), "Fill");
    EXPECT_EQ(report.at("selection").at("targets").at(0).at("style"), nullptr);
}

TEST(InspectedObjects, ShowValuesInWhichTheyAgreeWhereverTheyComeFrom)
{
    const Json report = DrawingOnDisk(Pair()).Report();

    // '#3366cc' of "Base" and '#3366cc' of "Twin": one value, two origins.
    EXPECT_EQ(RowOf(report, "fill", "color"), "#3366cc Inherited null");
}

TEST(InspectedObjects, ShowNoValueInWhichTheyDiffer)
{
    const Json report = DrawingOnDisk(Pair()).Report();

    EXPECT_EQ(RowOf(report, "outline", "width"), "ambiguous Ambiguous null"); // '1mm' of "Base", '2mm' of gr2
    EXPECT_EQ(RowOf(report, "fill", "transparency"), "ambiguous Ambiguous null"); // '70%' of gr1, nothing
    EXPECT_EQ(RowOf(report, "style", "style"), "ambiguous Ambiguous local");
}

TEST(InspectedObjects, AreReportedEachByItself)
{
    const Json reports = DrawingOnDisk(Pair()).Json("inspect", {"--each"}).at("reports");

    ASSERT_EQ(reports.size(), 2U);
    EXPECT_EQ(reports.at(0).at("selection").at("selector"), "id:1/1");
    EXPECT_EQ(RowOf(reports.at(0), "outline", "width"), "100 Inherited style:Base");
    EXPECT_EQ(RowOf(reports.at(1), "outline", "width"), "200 Overridden local");
}

TEST(InspectedObjects, ReportedEachAreReportedAsByTheirIds)
{
    const DrawingOnDisk drawing(Pair());

    const Json reports = drawing.Json("inspect", {"--each"}).at("reports");

    EXPECT_EQ(reports.at(1), drawing.Report({"--select", "id:1/2"}));
}

TEST(InspectedObjects, CountTheParagraphsAndRunsOfTheirText)
{
    const DrawingOnDisk drawing(
        FlatDrawing()
            .Automatic("text", "style:name='T1'", "<style:text-properties fo:font-weight='bold'/>")
            .Page("<draw:rect><text:p>one<text:span text:style-name='T1'>two</text:span>three</text:p>"
                  "<text:p>four</text:p></draw:rect><draw:line/>"));

    const Json targets = drawing.Report().at("selection").at("targets");

    EXPECT_EQ(targets.at(0).at("units"), 6); // two paragraphs; "one", "two", "three" and "four"
    EXPECT_EQ(targets.at(1).at("units"), 0);
}

TEST(InspectedObjects, ShowDifferencesBetweenTheRunsOfOneText)
{
    const DrawingOnDisk drawing(
        FlatDrawing()
            .Named("style:name='Base'", "<style:text-properties fo:font-weight='normal'/>")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'", "")
            .Automatic("text", "style:name='T1'", "<style:text-properties fo:font-weight='bold'/>")
            .Page("<draw:rect draw:style-name='gr1'><text:p>one<text:span "
                  "text:style-name='T1'>two</text:span></text:p>"
                  "</draw:rect>"));

    EXPECT_EQ(RowOf(drawing.Report(), "character", "weight"), "ambiguous Ambiguous null");
}

TEST(InspectedObjects, AreTheMembersOfAGroup)
{
    const DrawingOnDisk drawing(
        FlatDrawing().Page("<draw:rect/><draw:g><draw:line/><draw:g><draw:circle/></draw:g>"
                           "</draw:g>"));

    EXPECT_THAT(IdsOf(drawing.Report({"--select", "id:1/2"})), ElementsAre("1/2/1", "1/2/2/1"));
    EXPECT_THAT(IdsOf(drawing.Report({"--select", "kind:rect,id:1/2/2"})), ElementsAre("1/1", "1/2/2/1"));
}

TEST(InspectedObjects, AreThoseOfAPage)
{
    const DrawingOnDisk drawing(FlatDrawing().Page("<draw:rect/>").Page("<draw:line/><draw:circle/>"));

    EXPECT_THAT(IdsOf(drawing.Report({"--select", "page:2"})), ElementsAre("2/1", "2/2"));
}

TEST(InspectedEmptyDrawing, HasNoTargets)
{
    const DrawingOnDisk drawing(FlatDrawing().Page(""));

    const Json report = drawing.Report();

    EXPECT_THAT(IdsOf(report), IsEmpty());
    EXPECT_EQ(PanelOf(report, "fill").at("hasTargets"), false);
    EXPECT_EQ(PanelOf(report, "fill").at("title"), "Fill");
    EXPECT_EQ(RowOf(report, "fill", "color"), "null None null");
}

TEST(InspectedEmptyDrawing, HasNothingToReportEach)
{
    EXPECT_EQ(DrawingOnDisk(FlatDrawing().Page("")).Json("inspect", {"--each"}).at("reports"), Json::array());
}

TEST(InspectedDefaults, AreTheDefaultStyle)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--select", "defaults"});

    EXPECT_EQ(report.at("selection").dump(), R"({"selector":"defaults","targets":[]})");
    EXPECT_EQ(PanelOf(report, "outline").at("isDefaults"), true);
    EXPECT_EQ(PanelOf(report, "outline").at("hasTargets"), true);
    EXPECT_EQ(RowOf(report, "outline", "cap"), "round None local"); // svg:stroke-linecap='round'
    EXPECT_EQ(RowOf(report, "fill", "color"), "null None null");
}

TEST(InspectedNamedStyle, IsShownItself)
{
    const Json report = DrawingOnDisk(Chain()).Report({"--select", "sheet:Mid One"});

    EXPECT_EQ(report.at("selection").dump(), R"({"selector":"sheet:Mid One","targets":[]})");
    EXPECT_EQ(PanelOf(report, "fill").at("styleName"), "Mid One");
    EXPECT_EQ(PanelOf(report, "fill").at("properties").at("IsObjectStyle"), 0);
    EXPECT_EQ(PanelOf(report, "fill").at("properties").at("IsStyle"), 1);
    EXPECT_EQ(RowOf(report, "fill", "color"), "#3366cc Overridden local");
    EXPECT_EQ(RowOf(report, "fill", "type"), "gradient Inherited style:standard");
    EXPECT_EQ(RowOf(report, "style", "style"), "standard Overridden local");
}
