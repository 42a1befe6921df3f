#include "reference_host/history/History.h"

#include "host/resources/Resources.h"
#include "reference_host/history/IHistoryDocument.h"
#include "reference_host/history/StepChanges.h"

#include <exception>
#include <utility>

namespace ReferenceHost
{

struct History::Level
{
    explicit Level(OvxStringT levelName) : name(std::move(levelName)) {}

    OvxStringT name;
    StepChanges changes;
};

History::Step::Step(History& itsHistory, const OvxStringT& name)
    : history(itsHistory), exceptionsBefore(std::uncaught_exceptions())
{
    history.Open(name);
}

History::Step::~Step() noexcept(false)
{
    if (!isOpen)
        return;
    if (std::uncaught_exceptions() > exceptionsBefore)
        history.Cancel();
    else
        history.Close();
}

void History::Step::Cancel()
{
    if (std::exchange(isOpen, false))
        history.Cancel();
}

History::Rewind::Rewind(History& itsHistory) : history(itsHistory)
{
    history.EndLooseStep();
    for (auto level = history.open.rbegin(); level != history.open.rend(); ++level)
        (*level)->changes.Undo();
    for (auto step = history.done.rbegin(); step != history.done.rend(); ++step)
        (*step)->changes.Undo();
}

History::Rewind::~Rewind()
{
    for (const auto& step : history.done)
        step->changes.Redo();
    for (const auto& level : history.open)
        level->changes.Redo();
}

History::History(IHistoryDocument* itsDocument) : document(itsDocument)
{
}

History::~History() = default;

void History::SetListener(std::function<void(HistoryEvent, const StepChanges&)> newListener)
{
    listener = std::move(newListener);
}

void History::Open(const OvxStringT& name)
{
    EndLooseStep();
    open.push_back(std::make_unique<Level>(name));
}

bool History::Close()
{
    if (!IsOpen())
        return false;
    if (open.size() == 1)
        return Record();

    open[open.size() - 2]->changes.TakeOver(open.back()->changes);
    open.pop_back();
    return false;
}

void History::Cancel()
{
    if (!IsOpen())
        return;
    open.back()->changes.Undo();
    open.pop_back();
}

bool History::IsOpen() const noexcept
{
    return !open.empty() && !isLoose;
}

bool History::CanUndo()
{
    EndLooseStep();
    return open.empty() && !done.empty();
}

bool History::CanRedo()
{
    EndLooseStep();
    return open.empty() && !undone.empty();
}

bool History::Undo()
{
    if (!CanUndo())
        return false;
    undone.reserve(undone.size() + 1);
    done.back()->changes.Undo();
    undone.push_back(std::move(done.back()));
    done.pop_back();
    Tell(HistoryEvent::Undone, undone.back()->changes);
    return true;
}

bool History::Redo()
{
    if (!CanRedo())
        return false;
    done.reserve(done.size() + 1);
    undone.back()->changes.Redo();
    done.push_back(std::move(undone.back()));
    undone.pop_back();
    Tell(HistoryEvent::Redone, done.back()->changes);
    return true;
}

OvxStringT History::GetUndoName()
{
    EndLooseStep();
    return done.empty() ? OvxStringT() : done.back()->name;
}

OvxStringT History::GetRedoName()
{
    EndLooseStep();
    return undone.empty() ? OvxStringT() : undone.back()->name;
}

std::size_t History::GetStepCount()
{
    EndLooseStep();
    return done.size();
}

void History::Perform(std::unique_ptr<IDocumentChange> change)
{
    NeedChanges().Perform(std::move(change));
}

void History::BeforeStoring(Styles::StyleData& data, const Styles::PropertyKey& key)
{
    NeedChanges().KeepValue(data, key);
}

void History::BeforeChange(Styles::StyleData& data)
{
    NeedChanges().KeepStyle(data);
}

void History::BeforePlacing(Styles::Style& owner, const Styles::PropertyKey& key)
{
    NeedChanges().KeepFreePlace(owner, key);
}

void History::TakeRemoved(Styles::Style& owner, const Styles::PropertyKey& key,
                          std::unique_ptr<Styles::Style>& removed)
{
    NeedChanges().KeepTakenPlace(owner, key, removed);
}

StepChanges& History::NeedChanges()
{
    if (!std::exchange(isPrepared, true) && document != nullptr)
        document->PrepareForChanges();
    if (open.empty())
    {
        open.push_back(std::make_unique<Level>(Framework::Resources::GetString(L"history.edit")));
        isLoose = true;
    }
    return open.back()->changes;
}

void History::EndLooseStep()
{
    if (isLoose)
        Record();
}

bool History::Record()
{
    try
    {
        if (document != nullptr)
            document->Settle(open.back()->changes);
    }
    catch (...)
    {
        isLoose = false;
        Cancel();
        throw;
    }

    done.reserve(done.size() + 1);
    std::unique_ptr<Level> step = std::move(open.back());
    open.pop_back();
    isLoose = false;
    if (!step->changes.DropUnchanged())
        return false;
    undone.clear();
    done.push_back(std::move(step));
    Tell(HistoryEvent::Recorded, done.back()->changes);
    return true;
}

void History::Tell(HistoryEvent event, const StepChanges& changes) const
{
    if (listener)
        listener(event, changes);
}

} // namespace ReferenceHost
