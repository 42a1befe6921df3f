#include "reference_host/history/History.h"

#include "reference_host/history/IDocumentChange.h"
#include "reference_host/history/IHistoryDocument.h"
#include "tests/reference_host/history/JournalledStyles.h"

#include <stdexcept>

using ReferenceHost::History;

namespace
{

using HistoryStep = JournalledStyles;

/// Fails before it has done anything.
class FailingChange final : public ReferenceHost::IDocumentChange
{
public:
    void Redo() override { throw std::runtime_error("the change fails"); }

    void Undo() override { ADD_FAILURE() << "nothing was done that could be undone"; }
};

/// A document that counts what it is asked for, writes when a step ends, and may fail.
class SettlingDocument final : public ReferenceHost::IHistoryDocument
{
public:
    void PrepareForChanges() override { ++preparations; }

    void Settle(const ReferenceHost::StepChanges& /*changes*/) override
    {
        if (style != nullptr)
            style->SetPathProperty(Path({L"outline", L"width"}), Number(7));
        if (isFailing)
            throw std::runtime_error("the document cannot settle");
    }

    Styles::Style* style = nullptr;
    int preparations = 0;
    bool isFailing = false;
};

/// A style of a document that has its say when a step ends.
class SettledSteps : public testing::Test
{
protected:
    SettledSteps()
    {
        ReferenceHost::SetJournal(*style, &history);
        document.style = style.get();
    }

    void Write(int value) { style->SetPathProperty(Path({L"fill", L"color"}), Number(value)); }

    SettlingDocument document;
    History history{&document};
    std::unique_ptr<Styles::Style> style = MakeWhole();
};

} // namespace

TEST_F(HistoryStep, ClosesWithItsEnd)
{
    {
        const History::Step step(history, L"Colour");
        Write(L"color", 1);
        EXPECT_TRUE(history.IsOpen());
    }

    EXPECT_FALSE(history.IsOpen());
    EXPECT_EQ(history.GetUndoName(), OvxStringT(L"Colour"));
}

TEST_F(HistoryStep, TakesEverythingBackWhenAnExceptionPasses)
{
    Write(L"color", 1);
    const auto fail = [this]
    {
        const History::Step step(history, L"Fails");
        Write(L"color", 2);
        style->SetParent(parent.get());
        throw std::runtime_error("in the middle");
    };

    EXPECT_THROW(fail(), std::runtime_error);

    EXPECT_FALSE(history.IsOpen());
    EXPECT_EQ(Read(L"color"), Number(1));
    EXPECT_EQ(style->GetParent(), nullptr);
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(HistoryStep, IsCancelledOnce)
{
    history.Open(L"Gesture");
    Write(L"angle", 1);
    {
        History::Step step(history, L"Group");
        Write(L"color", 1);
        step.Cancel();
        step.Cancel();
    }

    EXPECT_TRUE(history.Close());
    EXPECT_TRUE(Read(L"color").IsEmpty());
    EXPECT_EQ(Read(L"angle"), Number(1));
}

TEST_F(HistoryStep, ForgetsAChangeThatFails)
{
    Write(L"color", 1);
    history.Open(L"Gesture");
    Write(L"color", 2);

    EXPECT_THROW(history.Perform(std::make_unique<FailingChange>()), std::runtime_error);

    EXPECT_TRUE(history.Close());
    EXPECT_TRUE(history.Undo());
    EXPECT_EQ(Read(L"color"), Number(1));
}

TEST_F(SettledSteps, AreSettledAsPartOfThemselves)
{
    history.Open(L"Colour");
    Write(1);
    history.Close();
    const OvxUtils::Any settled = style->GetPathProperty(Path({L"outline", L"width"}));

    history.Undo();

    EXPECT_EQ(settled, Number(7));
    EXPECT_TRUE(style->GetPathProperty(Path({L"outline", L"width"})).IsEmpty());
    EXPECT_FALSE(history.CanUndo());
}

TEST_F(SettledSteps, AreTakenBackWhenSettlingFails)
{
    document.isFailing = true;
    history.Open(L"Colour");
    Write(1);

    EXPECT_THROW(history.Close(), std::runtime_error);

    EXPECT_FALSE(history.IsOpen());
    EXPECT_TRUE(style->GetPathProperty(Path({L"fill", L"color"})).IsEmpty());
    EXPECT_TRUE(style->GetPathProperty(Path({L"outline", L"width"})).IsEmpty());
}

TEST_F(SettledSteps, PrepareTheDocumentOnceBeforeTheFirstChange)
{
    document.style = nullptr;
    history.Open(L"Nothing");
    history.Close();
    const int beforeChanges = document.preparations;

    Write(1);
    Write(2);

    EXPECT_EQ(document.preparations - beforeChanges, 1);
}
