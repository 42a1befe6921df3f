#pragma once

#include "reference_host/style_model/IStyleJournal.h"

#include <memory>

namespace ReferenceHost
{

/// Passes on to the history of a drawing what the styles of a sheet outside it tell, and remembers that there
/// was something: a sheet that nothing ever happened to is not looked at when the drawing is saved.
class SheetJournal final : public IStyleJournal
{
public:
    /// Borrows the journal that hears of everything.
    explicit SheetJournal(IStyleJournal& ofDrawing) : journal(ofDrawing) {}

    SheetJournal(const SheetJournal&) = delete;
    SheetJournal& operator=(const SheetJournal&) = delete;
    virtual ~SheetJournal() = default;

    /// Tells whether a change was ever told, also one that was undone since.
    [[nodiscard]] bool HasHeard() const noexcept { return hasHeard; }

    void BeforeStoring(Styles::StyleData& data, const Styles::PropertyKey& key) override
    {
        hasHeard = true;
        journal.BeforeStoring(data, key);
    }

    void BeforeChange(Styles::StyleData& data) override
    {
        hasHeard = true;
        journal.BeforeChange(data);
    }

    void BeforePlacing(Styles::Style& owner, const Styles::PropertyKey& key) override
    {
        hasHeard = true;
        journal.BeforePlacing(owner, key);
    }

    void TakeRemoved(Styles::Style& owner, const Styles::PropertyKey& key,
                     std::unique_ptr<Styles::Style>& removed) override
    {
        hasHeard = true;
        journal.TakeRemoved(owner, key, removed);
    }

private:
    IStyleJournal& journal;
    bool hasHeard = false;
};

} // namespace ReferenceHost
