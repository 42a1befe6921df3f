#include "reference_host/history/History.h"

#include "host/resources/Resources.h"
#include "reference_host/history/StepChanges.h"
#include "tests/reference_host/history/JournalledStyles.h"

#include <gmock/gmock.h>

#include <vector>

using ReferenceHost::HistoryEvent;
using Styles::Style;
using testing::ElementsAre;

namespace
{

using History = JournalledStyles;

} // namespace

TEST_F(History, RecordsOneStepForManyWrites)
{
    history.Open(L"Drag");
    for (int value = 1; value <= 1000; ++value)
        Write(L"color", value);
    const bool isRecorded = history.Close();

    EXPECT_TRUE(isRecorded);
    EXPECT_EQ(history.GetStepCount(), 1U);
    EXPECT_EQ(history.GetUndoName(), OvxStringT(L"Drag"));
}

TEST_F(History, TakesBackAndBringsBackWhatAStepWrote)
{
    Write(L"angle", 1);
    history.Open(L"Colour");
    Write(L"color", 2);
    Write(L"angle", 3);
    history.Close();

    const bool isUndone = history.Undo();
    const OvxUtils::Any colourBefore = Read(L"color");
    const OvxUtils::Any angleBefore = Read(L"angle");
    const bool isRedone = history.Redo();

    EXPECT_TRUE(isUndone);
    EXPECT_TRUE(colourBefore.IsEmpty());
    EXPECT_EQ(angleBefore, Number(1));
    EXPECT_TRUE(isRedone);
    EXPECT_EQ(Read(L"color"), Number(2));
    EXPECT_EQ(Read(L"angle"), Number(3));
}

TEST_F(History, TakesBackStepAfterStep)
{
    for (int value = 1; value <= 3; ++value)
    {
        history.Open(L"Colour");
        Write(L"color", value);
        history.Close();
    }

    history.Undo();
    const OvxUtils::Any afterOne = Read(L"color");
    history.Undo();
    const OvxUtils::Any afterTwo = Read(L"color");

    EXPECT_EQ(afterOne, Number(2));
    EXPECT_EQ(afterTwo, Number(1));
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(History, RecordsNothingWhenEverythingIsAsItWas)
{
    Write(L"color", 1);
    ASSERT_EQ(history.GetStepCount(), 1U);

    history.Open(L"There and back");
    Write(L"color", 2);
    Write(L"color", 1);
    const bool isRecorded = history.Close();

    EXPECT_FALSE(isRecorded);
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(History, RecordsNothingForAStepThatDidNothing)
{
    history.Open(L"Nothing");

    EXPECT_FALSE(history.Close());
    EXPECT_FALSE(history.CanUndo());
}

TEST_F(History, KeepsWhatCanBeRedoneWhenAStepDidNothing)
{
    Write(L"color", 1);
    history.Undo();

    history.Open(L"Nothing");
    history.Close();

    EXPECT_TRUE(history.CanRedo());
}

TEST_F(History, MakesAnOwnStepOfAChangeOutsideOfAny)
{
    Write(L"color", 1);

    EXPECT_EQ(history.GetUndoName(), Framework::Resources::GetString(L"history.edit"));
    EXPECT_TRUE(history.Undo());
    EXPECT_TRUE(Read(L"color").IsEmpty());
}

TEST_F(History, EndsTheStepOfAChangeOutsideOfAnyWithTheNextOpen)
{
    Write(L"color", 1);
    history.Open(L"Second");
    Write(L"color", 2);
    history.Close();

    history.Undo();

    EXPECT_EQ(Read(L"color"), Number(1));
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(History, TakesNoChangeOutsideOfAnyStepForAnOpenOne)
{
    Write(L"color", 1);

    EXPECT_FALSE(history.IsOpen());
    EXPECT_FALSE(history.Close());
    history.Cancel();
    EXPECT_EQ(Read(L"color"), Number(1));
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(History, IgnoresAnEndWithoutABeginning)
{
    EXPECT_FALSE(history.Close());
    history.Cancel();

    EXPECT_EQ(history.GetStepCount(), 0U);
    EXPECT_FALSE(history.Undo());
    EXPECT_FALSE(history.Redo());
}

TEST_F(History, RefusesToUndoAndRedoWhileAStepIsOpen)
{
    Write(L"color", 1);
    Write(L"angle", 1);
    history.Undo();
    Write(L"color", 1);
    history.Open(L"Open");

    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.Undo());
    EXPECT_FALSE(history.Redo());
    EXPECT_EQ(Read(L"color"), Number(1));
}

TEST_F(History, ForgetsWhatCouldBeRedoneWithANewStep)
{
    Write(L"color", 1);
    history.Undo();

    Write(L"angle", 2);

    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.GetRedoName(), OvxStringT());
}

TEST_F(History, NamesTheStepThatIsRedoneNext)
{
    for (const wchar_t* name : {L"First", L"Second"})
    {
        history.Open(name);
        Write(name, 1);
        history.Close();
    }

    history.Undo();
    history.Undo();

    EXPECT_EQ(history.GetRedoName(), OvxStringT(L"First"));
    EXPECT_EQ(history.GetUndoName(), OvxStringT());
}

TEST_F(History, TakesParentsBack)
{
    history.Open(L"Parent");
    style->SetParent(parent.get());
    history.Close();

    history.Undo();
    const Style* const before = style->GetParent();
    history.Redo();

    EXPECT_EQ(before, nullptr);
    EXPECT_EQ(style->GetParent(), parent.get());
}

TEST_F(History, RecordsNothingForAParentThatIsRefused)
{
    style->SetParent(parent.get());
    ASSERT_EQ(history.GetStepCount(), 1U);

    parent->SetParent(style.get());

    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(History, SurvivesTheEndOfAParent)
{
    style->SetParent(parent.get());
    history.Open(L"None");
    style->SetParent(nullptr);
    history.Close();
    parent.reset();

    history.Undo();

    EXPECT_EQ(style->GetParent(), nullptr);
}

TEST_F(History, TakesAWholeAssignmentBack)
{
    Write(L"color", 1);
    Style* const fill = style->GetSubstyle(Key(L"fill"), false);
    Style other(parent.get(), Key(L"another"));
    other.SetPathProperty(Path({L"stroke", L"width"}), Number(5));
    history.Open(L"Assign");
    *style = other;
    history.Close();

    history.Undo();

    EXPECT_EQ(style->GetCategoryName(), Key(L"style"));
    EXPECT_EQ(style->GetParent(), nullptr);
    EXPECT_EQ(style->GetSubstyle(Key(L"fill"), false), fill);
    EXPECT_EQ(Read(L"color"), Number(1));
    EXPECT_EQ(style->GetSubstyle(Key(L"stroke"), false), nullptr);
}

TEST_F(History, HearsNothingOfCopies)
{
    Style copy(*style);

    copy.SetPathProperty(Path({L"fill", L"color"}), Number(1));

    EXPECT_FALSE(history.CanUndo());
}

TEST_F(History, TellsItsListenerWhatBecameOfAStep)
{
    std::vector<HistoryEvent> events;
    history.SetListener([&events](HistoryEvent event, const ReferenceHost::StepChanges&)
                        { events.push_back(event); });

    history.Open(L"Colour");
    Write(L"color", 1);
    history.Close();
    history.Open(L"Nothing");
    history.Close();
    history.Undo();
    history.Redo();

    EXPECT_THAT(events, ElementsAre(HistoryEvent::Recorded, HistoryEvent::Undone, HistoryEvent::Redone));
}

TEST_F(History, TellsWhichWholeStylesAStepConcerns)
{
    std::vector<bool> concernsOnlyStyle;
    history.SetListener(
        [&](HistoryEvent, const ReferenceHost::StepChanges& changes)
        {
            Style* const whole[] = {style.get()};
            concernsOnlyStyle.push_back(changes.ConcernsOnly(whole));
        });

    history.Open(L"One");
    Write(L"color", 1);
    history.Close();
    history.Open(L"Both");
    Write(L"color", 2);
    parent->SetPathProperty(Path({L"fill", L"color"}), Number(3));
    history.Close();

    EXPECT_THAT(concernsOnlyStyle, ElementsAre(true, false));
}

TEST_F(History, ShowsTheBeginningForAsLongAsItIsAskedTo)
{
    history.Open(L"Colour");
    Write(L"color", 1);
    history.Close();
    history.Open(L"Angle");
    Write(L"angle", 2);
    history.Close();
    history.Undo();
    history.Open(L"Open");
    Write(L"color", 3);

    {
        const ReferenceHost::History::Rewind beginning(history);
        EXPECT_TRUE(Read(L"color").IsEmpty());
    }

    EXPECT_EQ(Read(L"color"), Number(3));
    history.Cancel();
    EXPECT_EQ(history.GetStepCount(), 1U);
    EXPECT_TRUE(history.Redo());
    EXPECT_EQ(Read(L"angle"), Number(2));
}

TEST_F(History, TellsNobodyThatItShowsTheBeginning)
{
    Write(L"color", 1);
    history.EndLooseStep();
    int heard = 0;
    history.SetListener([&heard](HistoryEvent, const ReferenceHost::StepChanges&) { ++heard; });

    {
        const ReferenceHost::History::Rewind beginning(history);
    }

    EXPECT_EQ(heard, 0);
}
