#include "reference_host/history/History.h"

#include "tests/reference_host/history/JournalledStyles.h"

using ReferenceHost::LiveStyleCount;
using Styles::Style;

namespace
{

using SubstyleHistory = JournalledStyles;

} // namespace

TEST_F(SubstyleHistory, TakesMadeSubstylesOutAndPutsTheSameOnesBack)
{
    style->SetPathProperty(Path({L"shadow", L"blur", L"radius"}), Number(1));
    const Style* const shadow = style->GetSubstyle(Key(L"shadow"), false);

    history.Undo();
    const Style* const afterUndo = style->GetSubstyle(Key(L"shadow"), false);
    history.Redo();

    EXPECT_EQ(afterUndo, nullptr);
    EXPECT_EQ(style->GetSubstyle(Key(L"shadow"), false), shadow);
    EXPECT_EQ(style->GetPathProperty(Path({L"shadow", L"blur", L"radius"})), Number(1));
}

TEST_F(SubstyleHistory, PutsRemovedSubstylesBackAtTheirAddresses)
{
    Write(L"color", 1);
    const Style* const fill = style->GetSubstyle(Key(L"fill"), false);
    history.Open(L"Remove");
    Write(L"color", 2);
    style->SetSubstyle(Key(L"fill"), nullptr);
    history.Close();

    history.Undo();

    EXPECT_EQ(style->GetSubstyle(Key(L"fill"), false), fill);
    EXPECT_EQ(fill->GetOwner(), style.get());
    EXPECT_EQ(Read(L"color"), Number(1));
}

TEST_F(SubstyleHistory, RemovesAgainWithTheLastValues)
{
    Write(L"color", 1);
    style->SetSubstyle(Key(L"fill"), nullptr);
    ASSERT_EQ(history.GetStepCount(), 1U);

    history.Undo();
    history.Redo();

    EXPECT_EQ(style->GetSubstyle(Key(L"fill"), false), nullptr);
}

TEST_F(SubstyleHistory, CutsRemovedSubstylesOffFromTheDocument)
{
    Style& fill = Sub(*style, L"fill");
    fill.SetProperty(Key(L"color"), Number(1));
    history.Open(L"Remove");
    style->SetSubstyle(Key(L"fill"), nullptr);
    history.Close();

    fill.SetProperty(Key(L"color"), Number(2));

    EXPECT_EQ(fill.GetOwner(), nullptr);
    EXPECT_EQ(history.GetUndoName(), OvxStringT(L"Remove"));
}

TEST_F(SubstyleHistory, RecordsNothingForAnEmptySubstyle)
{
    Sub(*style, L"shadow");

    EXPECT_FALSE(history.CanUndo());
}

TEST_F(SubstyleHistory, RecordsNothingForASubstyleThatStaysEmptyInAStep)
{
    history.Open(L"Look");
    Sub(*style, L"shadow");

    EXPECT_FALSE(history.Close());
    EXPECT_NE(style->GetSubstyle(Key(L"shadow"), false), nullptr);
}

TEST_F(SubstyleHistory, TakesTheValuesOfASubstyleThatWasMadeByLookingBack)
{
    Style& shadow = Sub(*style, L"shadow");
    history.Open(L"Shadow");
    shadow.SetProperty(Key(L"color"), Number(1));
    history.Close();

    history.Undo();

    EXPECT_EQ(style->GetSubstyle(Key(L"shadow"), false), &shadow);
    EXPECT_TRUE(shadow.IsEmpty());
}

TEST_F(SubstyleHistory, KeepsAnEmptySubstyleThatItKnowsFromAnEarlierStep)
{
    Style& fill = Sub(*style, L"fill");
    fill.SetProperty(Key(L"color"), Number(1));
    history.Open(L"Clear");
    fill.SetProperty(Key(L"color"), {});
    history.Close();

    history.Open(L"Tidy");
    ClearEmptySubstyles(*style);
    const bool isRecorded = history.Close();
    history.Undo();

    EXPECT_FALSE(isRecorded);
    EXPECT_EQ(style->GetSubstyle(Key(L"fill"), false), &fill);
    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(1));
}

TEST_F(SubstyleHistory, KeepsOneStateOfASubstyleThatIsReplacedAgainAndAgain)
{
    const std::size_t before = LiveStyleCount();
    history.Open(L"Drag");
    for (int value = 1; value <= 100; ++value)
    {
        style->SetSubstyle(Key(L"shadow"), nullptr);
        Style shadow;
        shadow.SetPathProperty(Path({L"blur", L"radius"}), Number(value));
        style->SetSubstyle(Key(L"shadow"), &shadow);
    }
    history.Close();

    EXPECT_EQ(LiveStyleCount(), before + 2);
    history.Undo();
    EXPECT_EQ(style->GetSubstyle(Key(L"shadow"), false), nullptr);
}

TEST_F(SubstyleHistory, FreesWhatCanNoLongerBeRedone)
{
    const std::size_t before = LiveStyleCount();
    Sub(*style, L"shadow").SetProperty(Key(L"color"), Number(1));
    ASSERT_TRUE(history.Undo());
    ASSERT_EQ(LiveStyleCount(), before + 1);

    Write(L"color", 1);
    ASSERT_TRUE(history.CanUndo());

    EXPECT_EQ(LiveStyleCount(), before);
}
