// Values that an editor writes and takes away.

#include "tests/workbench/EditorFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Workbench::EditError;
using Workbench::UsageError;
using State = ActivePropertyState;

namespace WorkbenchTests
{

using SettingAValue = EditorOnFourBoxes;

TEST_F(SettingAValue, WritesItToWhatIsSelectedAndToNothingElse)
{
    open.Select(L"name:A");

    open.Set(L"fill.color", L"#123456");

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#123456");
    EXPECT_EQ(open.ValueOf(L"name:D", L"fill.color"), "#3366cc");
}

TEST_F(SettingAValue, MakesItLocalWhenItEqualsTheInheritedOne)
{
    open.Select(L"name:A");

    open.Set(L"fill.color", L"#3366cc");

    EXPECT_EQ(open.Row(L"fill.color").state, State::Overridden);
    EXPECT_EQ(open.Row(L"fill.color").origin.kind, Workbench::RowOrigin::Kind::Local);
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(SettingAValue, TakesSeveralRowsOfSeveralPanelsAsOneStep)
{
    open.Select(L"name:A");

    editor.Set({{L"fill.type", L"solid"}, {L"outline.width", L"0.5mm"}, {L"fill.transparency", L"30%"}});

    EXPECT_EQ(open.ValueOf(L"fill.type"), "solid");
    EXPECT_EQ(open.ValueOf(L"outline.width"), "50");
    EXPECT_EQ(open.ValueOf(L"fill.transparency"), "30");
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(SettingAValue, KeepsTheLastOfTwoForOneRow)
{
    open.Select(L"name:A");

    editor.Set({{L"fill.color", L"red"}, {L"fill.color", L"lime"}});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#00ff00");
}

TEST_F(SettingAValue, NamesTheStepByThePanelAndTheRow)
{
    open.Select(L"name:A");

    open.Set(L"fill.color", L"red");

    EXPECT_EQ(open.GetSession().GetDrawing().GetHistory().GetUndoName(), L"Set Fill Colour");
}

TEST_F(SettingAValue, ReachesTheTextOfAnObject)
{
    open.Select(L"name:D");

    editor.Set({{L"character.size", L"20pt"}, {L"paragraph.align", L"center"}});

    EXPECT_EQ(open.ValueOf(L"character.size"), "200");
    EXPECT_EQ(open.ValueOf(L"paragraph.align"), "center");
}

TEST_F(SettingAValue, ReachesANamedStyleAndWhatInheritsFromIt)
{
    open.Select(L"sheet:Base");

    open.Set(L"fill.color", L"#123456");

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#123456");
    EXPECT_EQ(open.ValueOf(L"name:A", L"fill.color"), "#123456");
    EXPECT_EQ(open.ValueOf(L"name:B", L"fill.color"), "#ff0000");
}

TEST_F(SettingAValue, ReachesTheDefaultStyle)
{
    open.Select(L"defaults");

    editor.Set({{L"fill.transparency", L"25"}, {L"outline.type", L"dash"}});

    EXPECT_EQ(open.ValueOf(L"name:A", L"fill.transparency"), "25");
    EXPECT_EQ(open.ValueOf(L"name:A", L"outline.type"), "dash");
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(SettingAValue, LinksAColourToThePalette)
{
    open.Select(L"name:A");

    open.Set(L"fill.color", L"palette:Sea");

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#2a6f97@Sea");
}

TEST_F(SettingAValue, KeepsTheLinkOfAColourThatLooksTheSame)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"palette:Sea");

    open.Set(L"fill.color", L"#2a6f97");

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#2a6f97@Sea");
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(SettingAValue, EndsTheLinkWithAnotherColour)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"palette:Sea");

    open.Set(L"fill.color", L"#2a6f98");

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#2a6f98");
}

TEST_F(SettingAValue, ChangesNothingWhenOneOfSeveralCannotBeRead)
{
    const std::string before = open.Dump();

    EXPECT_THROW(editor.Set({{L"fill.color", L"red"}, {L"fill.transparency", L"lots"}}), UsageError);

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(SettingAValue, RefusesARowThatThereIsNot)
{
    EXPECT_THAT(open.ErrorOf([&] { open.Set(L"fill.colour", L"red"); }), HasSubstr("\"fill.color\""));
}

TEST_F(SettingAValue, RefusesAPanelThatTheSelectedStyleDoesNotBelongTo)
{
    open.Select(L"name:B");
    editor.CreateStyle(L"fill", L"Ink");
    open.Select(L"sheet:Ink");

    EXPECT_EQ(open.ErrorOf([&] { open.Set(L"outline.width", L"1mm"); }),
              "outline.width cannot be edited on sheet:Ink: nothing that is selected belongs to this panel");
}

using SettingTheParentStyle = EditorOnFourBoxes;

TEST_F(SettingTheParentStyle, MakesObjectsInheritFromIt)
{
    open.Select(L"name:A");

    open.Set(L"style.style", L"Accent");

    EXPECT_EQ(open.ValueOf(L"style.style"), "Accent");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#00aa00");
    EXPECT_EQ(open.ValueOf(L"outline.width"), "350");
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(SettingTheParentStyle, MakesNamedStylesInheritFromIt)
{
    open.Select(L"sheet:Base");
    editor.Clear({L"fill.color"});
    open.Select(L"sheet:Accent");

    open.Set(L"style.style", L"");

    EXPECT_EQ(open.ValueOf(L"style.style"), "-");
    EXPECT_EQ(open.ValueOf(L"outline.width"), "200");
    EXPECT_EQ(open.Row(L"outline.width").origin.kind, Workbench::RowOrigin::Kind::Local);
}

TEST_F(SettingTheParentStyle, KeepsWhatObjectsShowWhenTheyLoseIt)
{
    open.Select(L"name:C");

    open.Set(L"style.style", L"");

    EXPECT_EQ(open.ValueOf(L"style.style"), "-");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#00aa00");
    EXPECT_EQ(open.ValueOf(L"outline.width"), "200");
}

TEST_F(SettingTheParentStyle, RefusesANameThatThereIsNot)
{
    EXPECT_EQ(
        open.ErrorOf([&] { open.Set(L"style.style", L"Accents"); }),
        "value \"Accents\" for style.style: there is no such style; expected one of \"Base\", \"Accent\"");
}

TEST_F(SettingTheParentStyle, RefusesToCloseACycle)
{
    open.Select(L"sheet:Base");
    const std::string before = open.Dump();

    EXPECT_EQ(open.ErrorOf([&] { open.Set(L"style.style", L"Accent"); }),
              "the style \"Base\" cannot inherit from \"Accent\": it would inherit from itself");
    EXPECT_EQ(open.ErrorOf([&] { open.Set(L"style.style", L"Base"); }),
              "the style \"Base\" cannot inherit from \"Base\": it would inherit from itself");
    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(SettingTheParentStyle, RefusesAStyleOfOneCategory)
{
    open.Select(L"name:B");
    editor.CreateStyle(L"fill", L"Ink");

    EXPECT_THAT(open.ErrorOf([&] { open.Set(L"style.style", L"Ink"); }),
                HasSubstr("it is a style for fill only"));
}

TEST_F(SettingTheParentStyle, RefusesTheDefaultStyle)
{
    open.Select(L"defaults");

    EXPECT_THAT(open.ErrorOf([&] { open.Set(L"style.style", L"Base"); }),
                HasSubstr("default styles inherit from nothing"));
}

using ClearingAValue = EditorOnFourBoxes;

TEST_F(ClearingAValue, TakesTheLocalOneAway)
{
    open.Select(L"name:B");

    editor.Clear({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#3366cc");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
}

TEST_F(ClearingAValue, DoesSoWhateverTheState)
{
    open.Select(L"sheet:Base");
    ASSERT_EQ(open.Row(L"fill.color").state, State::None);

    editor.Clear({L"fill.color", L"outline.width"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#cccccc");
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(ClearingAValue, MakesNoStepWhereThereIsNone)
{
    open.Select(L"name:A");

    editor.Clear({L"fill.color"});

    EXPECT_EQ(editor.GetStepCount(), 0U);
    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(ClearingAValue, ReachesTheDefaultStyle)
{
    open.Select(L"defaults");

    editor.Clear({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "-");
}

using DefiningAColour = EditorOnFourBoxes;

TEST_F(DefiningAColour, AddsItToThePalette)
{
    editor.DefineColours({{L"Sand", L"#e9c46a"}, {L"Leaf", L"olive"}});
    open.Select(L"name:A");
    open.Set(L"fill.color", L"palette:Sand");

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#e9c46a@Sand");
    EXPECT_THAT(open.Changes(), testing::Contains("palette:Leaf color - -> #808000 None"));
}

TEST_F(DefiningAColour, ChangesWhatRefersToIt)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"palette:Sea");

    editor.DefineColours({{L"Sea", L"#000080"}});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#000080@Sea");
    EXPECT_EQ(editor.GetStepCount(), 2U);
}

TEST_F(DefiningAColour, RefusesAColourThatCannotBeReadAndAnEmptyName)
{
    EXPECT_THROW(editor.DefineColours({{L"Good", L"red"}, {L"Bad", L"reddish"}}), UsageError);
    EXPECT_THROW(editor.DefineColours({{L"", L"red"}}), UsageError);

    EXPECT_EQ(open.GetSession().GetDrawing().GetPalette().size(), 1U);
}

TEST_F(DefiningAColour, RefusesANameThatNoFileCanHoldAndAddsNone)
{
    EXPECT_THROW(editor.DefineColours({{L"Good", L"red"}, {L"Bell\a", L"red"}}), UsageError);

    EXPECT_EQ(open.GetSession().GetDrawing().GetPalette().size(), 1U);
}

TEST(NamingADefinition, TakesWhatTheDrawingDefinesAndTheEmptyNameForNone)
{
    OpenEditor open(
        FourBoxes().Styles("<draw:stroke-dash draw:name='Long_20_One' draw:display-name='Long One'/>"
                           "<draw:marker draw:name='Flow'/>"));

    open.Set(L"outline.dash", L"Long One");
    open.Set(L"outline.end-arrow", L"Flow");
    open.Set(L"outline.start-arrow", L"");

    EXPECT_EQ(open.ValueOf(L"outline.dash"), "Long One");
    EXPECT_EQ(open.ValueOf(L"outline.end-arrow"), "Flow");
}

TEST(NamingADefinition, RefusesANameThatWouldLeadNowhere)
{
    OpenEditor open(
        FourBoxes().Styles("<draw:stroke-dash draw:name='Long'/><draw:marker draw:name='Flow'/>"));

    EXPECT_EQ(OpenEditor::ErrorOf([&] { open.Set(L"outline.dash", L"Flow"); }),
              "outline.dash: the drawing defines no \"Flow\"; expected \"Long\"");
    EXPECT_EQ(OpenEditor::ErrorOf([&] { open.Set(L"fill.hatch", L"Long"); }),
              "fill.hatch: the drawing defines no \"Long\"; expected nothing, as it defines none");
}

} // namespace WorkbenchTests
