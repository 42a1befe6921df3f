#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/style_model/IStyleJournal.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace ReferenceHost
{

class IDocumentChange;
class IHistoryDocument;
class StepChanges;

/// What has just become of a step of history.
enum class HistoryEvent
{
    Recorded,
    Undone,
    Redone
};

/// The changes of one document, in named steps that can be undone and redone.
///
/// A step holds what changed between Open and the Close that belongs to it. Steps open within a step join it:
/// the outermost gives the name, and one of them can still be cancelled by itself. A change while none is
/// open goes to a step of its own, which ends with the next Open, Undo, Redo or question. A step that leaves
/// everything as it was is not recorded, nor one that only made empty substyles, as looking at a style does;
/// one that is recorded takes the place of those that could be redone.
///
/// Undone styles and substyles live on, so that their addresses hold as long as a step can bring them back.
/// One thread, the user interface's.
class STYLEPROPERTIES_HOST_API History : public IStyleJournal
{
public:
    /// Opens a step, and ends it with its own end: closes it, or cancels it when an exception passes.
    class STYLEPROPERTIES_HOST_API Step
    {
    public:
        Step(History& itsHistory, const OvxStringT& name);
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        ~Step() noexcept(false);

        /// Takes back what happened since, and ends the step; a second call does nothing.
        void Cancel();

    private:
        History& history;
        int exceptionsBefore;
        bool isOpen = true;
    };

    /// Shows the document as it was before its first step, for as long as it lives. Nothing is changed or
    /// undone meanwhile, and nobody is told.
    class STYLEPROPERTIES_HOST_API Rewind
    {
    public:
        explicit Rewind(History& itsHistory);
        Rewind(const Rewind&) = delete;
        Rewind& operator=(const Rewind&) = delete;
        ~Rewind();

    private:
        History& history;
    };

    /// `itsDocument` is borrowed and may be null.
    explicit History(IHistoryDocument* itsDocument = nullptr);

    History(const History&) = delete;
    History& operator=(const History&) = delete;
    virtual ~History();

    /// Called after a step was recorded, undone or redone, with what it holds. Null for nobody.
    void SetListener(std::function<void(HistoryEvent, const StepChanges&)> newListener);

    // Steps

    /// Opens a step, or one within the step that is open.
    void Open(const OvxStringT& name);

    /// Closes the step that was opened last; without one it does nothing.
    ///
    /// @returns whether that was the outermost, and a step was recorded.
    /// @throws  what settling the document throws; the step is taken back then, and closed.
    bool Close();

    /// Takes back everything since the last Open whose step is still open, and closes that step. Without one
    /// it does nothing.
    void Cancel();

    /// Ends the step of changes outside of any, if there is one, as the next Open would.
    void EndLooseStep();

    /// Tells whether a step is open. That of a change outside of any does not count.
    [[nodiscard]] bool IsOpen() const noexcept;

    // Undoing

    [[nodiscard]] bool CanUndo();
    [[nodiscard]] bool CanRedo();

    /// Takes the last step back.
    ///
    /// @returns whether it did: not while a step is open, nor without one to take back.
    bool Undo();

    /// Brings back what Undo() took back last; as Undo() otherwise.
    bool Redo();

    /// The name of the step that Undo() takes back; empty without one.
    [[nodiscard]] OvxStringT GetUndoName();

    /// The name of the step that Redo() brings back; empty without one.
    [[nodiscard]] OvxStringT GetRedoName();

    /// How many steps can be undone.
    [[nodiscard]] std::size_t GetStepCount();

    // Recording

    /// Makes a change beside the values of styles, as part of the step that is open.
    void Perform(std::unique_ptr<IDocumentChange> change);

    void BeforeStoring(Styles::StyleData& data, const Styles::PropertyKey& key) override;
    void BeforeChange(Styles::StyleData& data) override;
    void BeforePlacing(Styles::Style& owner, const Styles::PropertyKey& key) override;
    void TakeRemoved(Styles::Style& owner, const Styles::PropertyKey& key,
                     std::unique_ptr<Styles::Style>& removed) override;

private:
    struct Level;

    [[nodiscard]] StepChanges& NeedChanges();
    bool Record();
    void Tell(HistoryEvent event, const StepChanges& changes) const;

    IHistoryDocument* document;
    std::function<void(HistoryEvent, const StepChanges&)> listener;
    std::vector<std::unique_ptr<Level>> open; ///< From the outermost to the innermost.
    bool isLoose = false;                     ///< The one open step is that of changes outside of any.
    bool isPrepared = false;                  ///< The document was told that changes begin.
    std::vector<std::unique_ptr<Level>> done;
    std::vector<std::unique_ptr<Level>> undone; ///< The one to be redone first is last.
};

} // namespace ReferenceHost
