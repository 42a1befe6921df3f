// The commands of panels as an editor runs them.

#include "tests/workbench/EditorFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using Workbench::EditError;
using Workbench::UsageError;
using State = ActivePropertyState;

namespace WorkbenchTests
{

using Reverting = EditorOnFourBoxes;

TEST_F(Reverting, BringsBackTheInheritedValueOfARow)
{
    open.Select(L"name:B");

    editor.Revert({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#3366cc");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
}

TEST_F(Reverting, UndoesASetOfAnInheritedRowToTheLastValue)
{
    open.Select(L"name:A");
    const std::string before = open.Dump();
    open.Set(L"fill.color", L"red");

    editor.Revert({L"fill.color"});

    EXPECT_EQ(open.Dump(), before);
}

TEST_F(Reverting, TakesEverythingOfAPanelThatIsNamedAlone)
{
    open.Select(L"name:B");
    editor.Set({{L"fill.type", L"solid"}, {L"outline.width", L"1mm"}});

    editor.Revert({L"fill"});

    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(open.Row(L"fill.type").state, State::Inherited);
    EXPECT_EQ(open.Row(L"outline.width").state, State::Overridden);
}

TEST_F(Reverting, TakesTheWholeStyleInTheStylePanel)
{
    open.Select(L"name:B");
    open.Set(L"outline.width", L"1mm");

    editor.Revert({L"style"});

    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(open.Row(L"outline.width").state, State::Inherited);
}

TEST_F(Reverting, TakesSeveralRowsAsOneStep)
{
    open.Select(L"name:B");
    open.Set(L"outline.width", L"1mm");

    editor.Revert({L"fill.color", L"outline.width"});

    EXPECT_EQ(editor.GetStepCount(), 2U);
    EXPECT_EQ(open.Row(L"outline.width").state, State::Inherited);
}

TEST_F(Reverting, NamesTheStateInWhichItCannot)
{
    open.Select(L"name:A");

    EXPECT_EQ(
        open.ErrorOf([&] { editor.Revert({L"fill.color"}); }),
        "fill.color cannot be reverted on name:A: its state is Inherited, and only a local value can be");
    EXPECT_THAT(open.ErrorOf([&] { editor.Revert({L"fill"}); }), HasSubstr("its state is Inherited"));
}

TEST_F(Reverting, ChangesNothingWhenOneOfSeveralCannot)
{
    open.Select(L"name:B");

    EXPECT_THROW(editor.Revert({L"fill.color", L"outline.width"}), EditError);

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

using ApplyingToTheParent = EditorOnFourBoxes;

TEST_F(ApplyingToTheParent, MovesOneValueAndLeavesTheOthers)
{
    open.Select(L"name:B");
    open.Set(L"outline.width", L"1mm");

    editor.ApplyToParent({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.color"), "#ff0000");
    EXPECT_EQ(open.Row(L"outline.width").state, State::Overridden);
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"outline.width"), "200");
}

TEST_F(ApplyingToTheParent, MovesEverythingOfAPanelThatIsNamedAlone)
{
    open.Select(L"name:B");
    editor.Set({{L"fill.type", L"solid"}, {L"outline.width", L"1mm"}});

    editor.ApplyToParent({L"fill"});

    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.color"), "#ff0000");
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.type"), "solid");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(open.Row(L"outline.width").state, State::Overridden);
}

TEST_F(ApplyingToTheParent, MovesTheWholeStyleInTheStylePanel)
{
    open.Select(L"name:B");
    open.Set(L"outline.width", L"1mm");

    editor.ApplyToParent({L"style"});

    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.color"), "#ff0000");
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"outline.width"), "100");
    EXPECT_EQ(open.Row(L"outline.width").state, State::Inherited);
}

TEST_F(ApplyingToTheParent, LeavesTheOverridesOfOthers)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"#123456");

    editor.ApplyToParent({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"name:B", L"fill.color"), "#ff0000");
    EXPECT_EQ(open.ValueOf(L"sheet:Accent", L"fill.color"), "#00aa00");
}

TEST_F(ApplyingToTheParent, GivesEachParentTheValueThatItsTargetsShare)
{
    open.Select(L"name:A,name:C");
    open.Set(L"fill.color", L"#123456");

    editor.ApplyToParent({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#123456");
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.color"), "#123456");
    EXPECT_EQ(open.ValueOf(L"sheet:Accent", L"fill.color"), "#123456");
    EXPECT_EQ(editor.GetStepCount(), 2U);
}

TEST_F(ApplyingToTheParent, NamesTheStateInWhichItCannot)
{
    open.Select(L"name:A");

    EXPECT_EQ(
        open.ErrorOf([&] { editor.ApplyToParent({L"fill.color"}); }),
        "fill.color cannot be applied to the parent on name:A: its state is Inherited, and only a local "
        "value moves to a parent that there is");
    EXPECT_THAT(open.ErrorOf([&] { editor.ApplyToParent({L"fill"}); }), HasSubstr("its state is Inherited"));
}

TEST_F(ApplyingToTheParent, RefusesARowInWhichTheTargetsDiffer)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"#123456");
    open.Select(L"name:A,name:B");

    EXPECT_EQ(open.ErrorOf([&] { editor.ApplyToParent({L"fill.color"}); }),
              "fill.color cannot be applied to the parent on name:A,name:B: its state is Overridden, and the "
              "targets differ in it");
}

TEST_F(ApplyingToTheParent, RefusesAWholeStyleInWhichTheTargetsDiffer)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"#123456");
    open.Select(L"name:A,name:B");

    EXPECT_THAT(open.ErrorOf([&] { editor.ApplyToParent({L"fill"}); }),
                HasSubstr("and the targets differ in fill.color"));
}

TEST_F(ApplyingToTheParent, RefusesAWholeStyleOfTargetsThatInheritFromDifferentStyles)
{
    open.Select(L"name:A,name:C");
    open.Set(L"fill.color", L"#123456");

    EXPECT_THAT(open.ErrorOf([&] { editor.ApplyToParent({L"fill"}); }),
                HasSubstr("and the targets inherit from several styles: \"Base\", \"Accent\""));
}

TEST_F(ApplyingToTheParent, TakesAWholeStyleOfTargetsThatAgree)
{
    open.Select(L"name:A,name:D");
    editor.Set({{L"fill.color", L"#123456"}, {L"fill.type", L"solid"}});

    editor.ApplyToParent({L"fill"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#123456");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.type"), "solid");
}

TEST_F(ApplyingToTheParent, IsNotForTheNameOfTheParent)
{
    open.Select(L"name:B");

    EXPECT_THROW(editor.ApplyToParent({L"style.style"}), EditError);
}

using BreakingALink = EditorOnFourBoxes;

TEST_F(BreakingALink, KeepsTheLookOfTheColour)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"palette:Sea");

    editor.BreakLink({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#2a6f97");
}

TEST_F(BreakingALink, RefusesAColourWithoutOneAndWhatIsNoColour)
{
    open.Select(L"name:B");

    EXPECT_EQ(open.ErrorOf([&] { editor.BreakLink({L"fill.color"}); }),
              "fill.color has no link to break on name:B: its state is Overridden, and the command takes one "
              "target whose colour refers to the palette");
    EXPECT_THROW(editor.BreakLink({L"outline.width"}), EditError);
    EXPECT_THROW(editor.BreakLink({L"fill.gradient"}), EditError);
}

TEST_F(BreakingALink, RefusesSeveralTargets)
{
    open.Select(L"name:A,name:D");
    open.Set(L"fill.color", L"palette:Sea");

    EXPECT_THROW(editor.BreakLink({L"fill.color"}), EditError);

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#2a6f97@Sea");
}

using CreatingAStyle = EditorOnFourBoxes;

TEST_F(CreatingAStyle, KeepsTheLookAndMakesTheObjectInheritFromIt)
{
    open.Select(L"name:B");

    const OvxStringT name = editor.CreateStyle(L"style", std::nullopt);

    EXPECT_EQ(name, L"style");
    EXPECT_EQ(open.ValueOf(L"style.style"), "style");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(open.ValueOf(L"sheet:style", L"style.style"), "Base");
}

TEST_F(CreatingAStyle, GivesItTheNameThatIsAskedForInTheSameStep)
{
    open.Select(L"name:B");

    const OvxStringT name = editor.CreateStyle(L"style", L"Warning");

    EXPECT_EQ(name, L"Warning");
    EXPECT_EQ(open.ValueOf(L"style.style"), "Warning");
    EXPECT_EQ(editor.GetStepCount(), 1U);
    EXPECT_EQ(open.GetSession().GetStyles().CategoryOf(L"style"), L"");
}

TEST_F(CreatingAStyle, IsUndoneAndRedoneWhole)
{
    open.Select(L"name:B");
    const std::string before = open.Dump();
    editor.CreateStyle(L"style", L"Warning");
    const std::string after = open.Dump();

    ASSERT_TRUE(editor.Undo());
    EXPECT_EQ(open.Dump(), before);
    ASSERT_TRUE(editor.Redo());
    EXPECT_EQ(open.Dump(), after);
}

TEST_F(CreatingAStyle, RefusesANameThatIsTakenOrEmpty)
{
    open.Select(L"name:B");

    EXPECT_THAT(open.ErrorOf([&] { editor.CreateStyle(L"style", L"Accent"); }),
                HasSubstr("there is a style \"Accent\" already"));
    EXPECT_THROW(editor.CreateStyle(L"style", L""), UsageError);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(CreatingAStyle, RefusesANameThatNoFileCanHoldAndMakesNone)
{
    const std::string before = open.Dump();

    EXPECT_THROW(editor.CreateStyle(L"style", L"Bell\a"), UsageError);

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(CreatingAStyle, RefusesTheDefaultStyles)
{
    open.Select(L"defaults");

    EXPECT_THROW(editor.CreateStyle(L"style", std::nullopt), EditError);
}

using EditingAStyle = EditorOnFourBoxes;

TEST_F(EditingAStyle, SelectsTheStyleThatTheTargetsInheritFrom)
{
    open.Select(L"name:C");

    const OvxStringT name = editor.EditStyle(L"fill");

    EXPECT_EQ(name, L"Accent");
    EXPECT_EQ(editor.GetSelection().selector, L"sheet:Accent");
    EXPECT_EQ(open.Row(L"fill.color").origin.kind, Workbench::RowOrigin::Kind::Local);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(EditingAStyle, RefusesTargetsThatInheritFromNone)
{
    open.Select(L"sheet:Base");

    EXPECT_EQ(open.ErrorOf([&] { editor.EditStyle(L"fill"); }),
              "fill has no style to edit on sheet:Base: its state is None, and no named style is inherited "
              "from");
    EXPECT_EQ(editor.GetSelection().selector, L"sheet:Base");
}

TEST_F(EditingAStyle, RefusesAPanelThatThereIsNot)
{
    EXPECT_THROW(editor.EditStyle(L"paint"), UsageError);
}

} // namespace WorkbenchTests
