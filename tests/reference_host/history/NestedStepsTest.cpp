#include "reference_host/history/History.h"

#include "tests/reference_host/history/JournalledStyles.h"

using NestedSteps = JournalledStyles;

TEST_F(NestedSteps, AreOneStepUnderTheNameOfTheOutermost)
{
    history.Open(L"Gesture");
    history.Open(L"Write");
    Write(L"color", 1);
    const bool isInnerRecorded = history.Close();
    history.Open(L"Write");
    Write(L"color", 2);
    history.Close();
    const bool isOuterRecorded = history.Close();

    EXPECT_FALSE(isInnerRecorded);
    EXPECT_TRUE(isOuterRecorded);
    EXPECT_EQ(history.GetStepCount(), 1U);
    EXPECT_EQ(history.GetUndoName(), OvxStringT(L"Gesture"));
    history.Undo();
    EXPECT_TRUE(Read(L"color").IsEmpty());
}

TEST_F(NestedSteps, AreCancelledToTheirOwnBeginning)
{
    history.Open(L"Gesture");
    Write(L"color", 1);
    history.Open(L"Group");
    Write(L"color", 2);
    Write(L"angle", 3);
    style->SetParent(parent.get());

    history.Cancel();

    EXPECT_TRUE(history.IsOpen());
    EXPECT_EQ(Read(L"color"), Number(1));
    EXPECT_TRUE(Read(L"angle").IsEmpty());
    EXPECT_EQ(style->GetParent(), nullptr);
}

TEST_F(NestedSteps, LeaveTheStepAroundThemWholeWhenTheyAreCancelled)
{
    history.Open(L"Gesture");
    Write(L"color", 1);
    history.Open(L"Group");
    Write(L"color", 2);
    history.Cancel();
    Write(L"angle", 4);
    history.Close();

    history.Undo();
    const bool isEmptyAfterUndo = Read(L"color").IsEmpty() && Read(L"angle").IsEmpty();
    history.Redo();

    EXPECT_TRUE(isEmptyAfterUndo);
    EXPECT_EQ(Read(L"color"), Number(1));
    EXPECT_EQ(Read(L"angle"), Number(4));
}

TEST_F(NestedSteps, LeaveNoTraceWhenAllIsCancelled)
{
    Write(L"color", 1);
    history.Open(L"Gesture");
    Write(L"color", 2);
    history.Open(L"Group");
    Write(L"color", 3);
    history.Close();

    history.Cancel();

    EXPECT_EQ(Read(L"color"), Number(1));
    EXPECT_EQ(history.GetStepCount(), 1U);
    EXPECT_FALSE(history.CanRedo());
}

TEST_F(NestedSteps, KeepWhatCouldBeRedoneWhenTheyAreCancelled)
{
    Write(L"color", 1);
    history.Undo();

    history.Open(L"Gesture");
    Write(L"angle", 2);
    history.Cancel();

    EXPECT_TRUE(history.Redo());
    EXPECT_EQ(Read(L"color"), Number(1));
}

TEST_F(NestedSteps, TakeSubstylesOfTheStepAroundThemBack)
{
    history.Open(L"Gesture");
    Sub(*style, L"gradient").SetProperty(Key(L"angle"), Number(1));
    const Styles::Style* const gradient = style->GetSubstyle(Key(L"gradient"), false);
    history.Open(L"Group");
    style->SetSubstyle(Key(L"gradient"), nullptr);

    history.Cancel();

    EXPECT_EQ(style->GetSubstyle(Key(L"gradient"), false), gradient);
    EXPECT_EQ(gradient->GetProperty(Key(L"angle")), Number(1));
}

TEST_F(NestedSteps, MayRemoveWhatTheStepAroundThemMade)
{
    const std::size_t before = ReferenceHost::LiveStyleCount();
    history.Open(L"Gesture");
    Sub(*style, L"gradient").SetProperty(Key(L"angle"), Number(1));
    history.Open(L"Group");
    style->SetSubstyle(Key(L"gradient"), nullptr);
    history.Close();

    EXPECT_FALSE(history.Close());
    EXPECT_EQ(style->GetSubstyle(Key(L"gradient"), false), nullptr);
    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before);
}
