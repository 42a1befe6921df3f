// What an editor tells of its edits.

#include "tests/workbench/EditorFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace WorkbenchTests
{

using ChangesOfAnEditor = EditorOnFourBoxes;

TEST_F(ChangesOfAnEditor, AreNoneAtFirst)
{
    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(ChangesOfAnEditor, TellObjectRowBeforeAfterAndState)
{
    open.Select(L"name:A");

    open.Set(L"fill.color", L"red");

    EXPECT_THAT(open.Changes(), ElementsAre("1/1 fill.color #3366cc -> #ff0000 Overridden"));
}

TEST_F(ChangesOfAnEditor, TellAValueThatOnlyBecameLocal)
{
    open.Select(L"name:A");

    open.Set(L"fill.color", L"#3366cc");

    EXPECT_THAT(open.Changes(), ElementsAre("1/1 fill.color #3366cc -> #3366cc Overridden"));
}

TEST_F(ChangesOfAnEditor, TellALinkThatComesAndGoes)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"palette:Sea");
    EXPECT_THAT(open.Changes(), ElementsAre("1/1 fill.color #3366cc -> #2a6f97@Sea Overridden"));

    editor.BreakLink({L"fill.color"});

    EXPECT_THAT(open.Changes(), ElementsAre("1/1 fill.color #3366cc -> #2a6f97 Overridden"));
}

TEST_F(ChangesOfAnEditor, LeaveOutTargetsThatAreAsTheyWere)
{
    open.Select(L"name:A,name:B");

    open.Set(L"fill.color", L"#ff0000");

    EXPECT_THAT(open.Changes(), ElementsAre("1/1 fill.color #3366cc -> #ff0000 Overridden"));
}

TEST_F(ChangesOfAnEditor, CompareWithWhatWasBeforeTheFirstEdit)
{
    open.Select(L"name:A");

    open.Set(L"fill.color", L"red");
    open.Set(L"fill.color", L"lime");

    EXPECT_THAT(open.Changes(), ElementsAre("1/1 fill.color #3366cc -> #00ff00 Overridden"));
}

TEST_F(ChangesOfAnEditor, CompareWithTheDrawingAsItWasOpenedWhateverWasEditedInBetween)
{
    open.Select(L"sheet:Base");
    open.Set(L"fill.color", L"yellow");
    open.Select(L"name:A");
    open.Set(L"fill.color", L"red");
    EXPECT_THAT(open.Changes(), Contains("1/1 fill.color #3366cc -> #ff0000 Overridden"));

    editor.Undo();
    editor.Undo();

    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(ChangesOfAnEditor, AreGoneWhenTheEditIsUndoneAndBackWhenItIsRedone)
{
    open.Select(L"name:A");
    open.Set(L"fill.color", L"red");

    editor.Undo();
    EXPECT_THAT(open.Changes(), IsEmpty());
    editor.Redo();
    EXPECT_THAT(open.Changes(), ElementsAre("1/1 fill.color #3366cc -> #ff0000 Overridden"));
}

TEST_F(ChangesOfAnEditor, StandInTheOrderOfTheDrawingWhateverTheOrderOfEdits)
{
    open.Select(L"name:C");
    editor.Set({{L"outline.width", L"1mm"}, {L"fill.color", L"red"}});
    open.Select(L"name:A");
    open.Set(L"fill.color", L"red");
    open.Select(L"sheet:Accent");
    open.Set(L"fill.color", L"blue");
    open.Select(L"sheet:Base");
    open.Set(L"character.font", L"Serif");
    open.Select(L"defaults");
    open.Set(L"fill.color", L"white");
    editor.DefineColours({{L"Sand", L"#e9c46a"}});

    EXPECT_THAT(open.Changes(), ElementsAre("palette:Sand color - -> #e9c46a None",        //
                                            "defaults fill.color #cccccc -> #ffffff None", //
                                            "sheet:Base character.font - -> Serif None",
                                            "sheet:Accent fill.color #00aa00 -> #0000ff Overridden",
                                            "1/1 fill.color #3366cc -> #ff0000 Overridden",
                                            "1/3 fill.color #00aa00 -> #ff0000 Overridden",
                                            "1/3 outline.width 200 -> 100 Overridden"));
}

TEST_F(ChangesOfAnEditor, TellTheStyleThatReceivesAValue)
{
    open.Select(L"name:B");

    editor.ApplyToParent({L"fill.color"});

    EXPECT_THAT(open.Changes(), ElementsAre("sheet:Base fill.color #3366cc -> #ff0000 None",
                                            "1/2 fill.color #ff0000 -> #ff0000 Inherited"));
}

TEST_F(ChangesOfAnEditor, TellWhatAnotherParentBrings)
{
    open.Select(L"name:A");

    open.Set(L"style.style", L"Accent");

    EXPECT_THAT(open.Changes(), ElementsAre("1/1 style.style Base -> Accent Overridden",
                                            "1/1 fill.color #3366cc -> #00aa00 Inherited"));
}

TEST_F(ChangesOfAnEditor, TellWhatANewStyleHoldsAndWhoInheritsFromIt)
{
    open.Select(L"name:B");

    editor.CreateStyle(L"style", L"Warning");

    EXPECT_THAT(open.Changes(), ElementsAre("sheet:Warning style.style - -> Base Overridden",
                                            "sheet:Warning fill.color - -> #ff0000 Overridden",
                                            "1/2 style.style Base -> Warning Inherited",
                                            "1/2 fill.color #ff0000 -> #ff0000 Inherited"));
}

TEST_F(ChangesOfAnEditor, TellNothingOfANewStyleThatIsUndone)
{
    open.Select(L"name:B");
    editor.CreateStyle(L"style", L"Warning");

    editor.Undo();

    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(ChangesOfAnEditor, TellTheTextOfAnObject)
{
    open.Select(L"name:D");

    open.Set(L"character.size", L"20pt");

    EXPECT_THAT(open.Changes(), ElementsAre("1/4 character.size - -> 200 Overridden"));
}

TEST_F(ChangesOfAnEditor, LeaveThePanelsOfTheSessionAlone)
{
    open.Set(L"fill.color", L"red");
    int heard = 0;
    for (const auto& panel : open.GetSession().GetPanels())
    {
        for (const OvxStringT& name : panel->GetBoundNames().GetNames())
            panel->GetDataSource().AddListener(name, [&](const OvxStringT&) { ++heard; });
    }

    EXPECT_EQ(open.Changes().size(), 3U);

    EXPECT_EQ(heard, 0);
}

} // namespace WorkbenchTests
