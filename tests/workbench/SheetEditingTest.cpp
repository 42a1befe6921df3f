// Editing styles of sheets outside a drawing through the panels.

#include "apps/workbench/PanelCommands.h"
#include "apps/workbench/RowPlace.h"
#include "tests/reference_host/document/SheetFolder.h"
#include "tests/workbench/EditorFixture.h"

#include <optional>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace WorkbenchTests
{
namespace
{

class SheetEditing : public testing::Test
{
protected:
    /// Opens a drawing beside the sheet and selects in it.
    void Open(const FlatDrawing& drawing, const wchar_t* selector)
    {
        folder.Write("house.fodg", sheet);
        open.emplace(folder.Write("drawing.fodg", drawing));
        open->Select(selector);
    }

    /// Whether the fill panel lets styles be edited.
    [[nodiscard]] int IsStyleEditingEnabled()
    {
        const auto place = Workbench::FindRow(open->GetSession().GetPanels(), L"fill.color");
        return place.GetBoundNames().Read<int>(L"EnableStyleEditing");
    }

    /// Writes to the fill panel as a window does, past the checks of the editor.
    void WriteColourToThePanel()
    {
        const auto place = Workbench::FindRow(open->GetSession().GetPanels(), L"fill.color");
        place.GetBoundNames().WriteAny(L"FillColor", OvxUtils::Any(CLR_COLORSPEC::FromRgb({1, 2, 3})));
    }

    std::vector<std::filesystem::path> Save()
    {
        return open->editor.Save(folder.PathOf("drawing.fodg"), {}, warnings);
    }

    FlatDrawing sheet = HouseSheet().Styles("<draw:gradient draw:name='Dusk'/>");
    SheetFolder folder;
    std::vector<std::string> warnings;
    std::optional<OpenEditor> open;
};

} // namespace

TEST_F(SheetEditing, IsRefusedByPanelsWithoutALink)
{
    Open(LinkedDrawing(), L"sheet:House Box");

    WriteColourToThePanel();

    EXPECT_EQ(IsStyleEditingEnabled(), 0);
    EXPECT_EQ(open->ValueOf(L"fill.color"), "#00aa00");
    EXPECT_EQ(open->editor.GetStepCount(), 0U);
}

TEST_F(SheetEditing, IsRefusedWithTheNameOfTheSheet)
{
    Open(LinkedDrawing(), L"sheet:House Box");

    EXPECT_EQ(
        OpenEditor::ErrorOf([&] { open->Set(L"fill.color", L"red"); }),
        "fill.color cannot be edited on sheet:House Box: the style comes from the style sheet \"House\", "
        "which the drawing does not let be edited");
    EXPECT_THAT(OpenEditor::ErrorOf([&] { open->editor.Revert({L"fill.color"}); }),
                HasSubstr("the style comes from the style sheet \"House\""));
}

TEST_F(SheetEditing, TakesNoValuesOfShapesWithoutALink)
{
    Open(LinkedDrawing(), L"name:Box");

    EXPECT_EQ(IsStyleEditingEnabled(), 0);
    EXPECT_THAT(
        OpenEditor::ErrorOf([&] { open->editor.ApplyToParent({L"outline.width"}); }),
        HasSubstr("and \"House Box\" comes from the style sheet \"House\", which the drawing does not "
                  "let be edited"));
    EXPECT_EQ(open->ValueOf(L"sheet:House Box", L"outline.width"), "100");
}

TEST_F(SheetEditing, LeavesShapesEditableWithoutALink)
{
    Open(LinkedDrawing(), L"name:Box");

    open->Set(L"fill.color", L"#010203");

    EXPECT_EQ(open->ValueOf(L"fill.color"), "#010203");
}

TEST_F(SheetEditing, ReachesTheFileAndEveryShapeWithALink)
{
    Open(EditingDrawing(), L"sheet:House Box");

    open->Set(L"fill.color", L"#010203");

    EXPECT_EQ(IsStyleEditingEnabled(), 1);
    EXPECT_EQ(open->ValueOf(L"name:Box", L"fill.color"), "#010203");
    EXPECT_THAT(open->Changes(), ElementsAre("sheet:House Box fill.color #00aa00 -> #010203 Overridden"));
    EXPECT_THAT(Save(), ElementsAre(folder.PathOf("house.fodg")));
    EXPECT_THAT(folder.Bytes("house.fodg"), HasSubstr("#010203"));
}

TEST_F(SheetEditing, TakesTheDefinitionsOfTheSheet)
{
    FlatDrawing drawing = EditingDrawing();
    Open(drawing.Styles("<draw:gradient draw:name='Dawn'/>"), L"sheet:House Box");

    EXPECT_EQ(OpenEditor::ErrorOf([&] { open->Set(L"fill.gradient", L"Dawn"); }),
              "fill.gradient: the style sheet \"House\" defines no \"Dawn\"; expected \"Dusk\"");
    open->Set(L"fill.gradient", L"Dusk");

    EXPECT_EQ(open->ValueOf(L"fill.gradient"), "Dusk");
}

TEST_F(SheetEditing, IsUndoneInOneStep)
{
    Open(EditingDrawing(), L"name:Box");
    const std::string before = open->Dump() + open->ValueOf(L"sheet:House Box", L"outline.width");

    open->editor.ApplyToParent({L"outline.width"});

    EXPECT_EQ(open->ValueOf(L"sheet:House Box", L"outline.width"), "200");
    EXPECT_EQ(open->editor.GetStepCount(), 1U);
    EXPECT_TRUE(open->editor.Undo());
    EXPECT_EQ(open->Dump() + open->ValueOf(L"sheet:House Box", L"outline.width"), before);
    EXPECT_THAT(Save(), IsEmpty());
    EXPECT_EQ(folder.Bytes("house.fodg"), sheet.Text());
}

TEST_F(SheetEditing, ShowsWhereValuesComeFrom)
{
    Open(LinkedDrawing(), L"name:Box");

    EXPECT_EQ(open->Row(L"fill.color").origin.style, L"House Box");
    EXPECT_EQ(open->ValueOf(L"style.style"), "House Box");
}

TEST_F(SheetEditing, KeepsThePanelsListToTheStylesOfTheDrawing)
{
    Open(EditingDrawing(), L"name:Box");

    EXPECT_THAT(OpenEditor::ErrorOf([&] { open->Set(L"style.style", L"House Base"); }),
                HasSubstr("styles of a style sheet cannot be picked"));
    EXPECT_EQ(
        OpenEditor::ErrorOf([&] { open->editor.Restyle(L"style", Workbench::PickByName{L"House Base"}); }),
        "\"House Base\" cannot be picked: it comes from the style sheet \"House\", and panels list the "
        "drawing's own styles only");
    EXPECT_EQ(open->ValueOf(L"style.style"), "House Box");
}

TEST_F(SheetEditing, IsNotNeededToLeaveTheSheet)
{
    Open(LinkedDrawing(), L"name:Box");

    open->editor.Restyle(L"style", Workbench::PickByName{L"Note"});

    EXPECT_EQ(open->ValueOf(L"style.style"), "Note");
}

TEST_F(SheetEditing, TellsHowToSelectAStyleThatPanelsDoNotName)
{
    Open(EditingDrawing(), L"name:Box");

    EXPECT_THAT(OpenEditor::ErrorOf([&] { open->editor.EditStyle(L"fill"); }),
                HasSubstr("and \"House Box\" comes from a style sheet; select \"sheet:House Box\" instead"));
}

TEST_F(SheetEditing, KeepsTheNamesOfTheSheetForIt)
{
    Open(EditingDrawing(), L"name:Sticky");

    EXPECT_THAT(OpenEditor::ErrorOf([&] { open->editor.CreateStyle(L"style", L"House Box"); }),
                StartsWith("there is a style \"House Box\" already"));
}

} // namespace WorkbenchTests
