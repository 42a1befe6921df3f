#pragma once

#include "reference_host/style_model/IStyleJournal.h"

namespace ReferenceHost
{

class CascadeStyles;

/// Passes on to the history of a drawing what the styles of its objects and their text tell, and marks the
/// objects: those that nothing ever happened to need not be compared with the file when it is saved.
class UserJournal final : public IStyleJournal
{
public:
    /// Borrows who knows whose the styles are.
    explicit UserJournal(const CascadeStyles& itsStyles) : styles(itsStyles) {}

    UserJournal(const UserJournal&) = delete;
    UserJournal& operator=(const UserJournal&) = delete;
    virtual ~UserJournal() = default;

    /// The journal that hears of everything; borrowed, null for none.
    void SetNext(IStyleJournal* nextJournal) noexcept { next = nextJournal; }

    /// This, where there is a journal to pass things on to; else null.
    [[nodiscard]] IStyleJournal* GetIfUsed() noexcept { return next == nullptr ? nullptr : this; }

    void BeforeStoring(Styles::StyleData& data, const Styles::PropertyKey& key) override;
    void BeforeChange(Styles::StyleData& data) override;
    void BeforePlacing(Styles::Style& owner, const Styles::PropertyKey& key) override;
    void TakeRemoved(Styles::Style& owner, const Styles::PropertyKey& key,
                     std::unique_ptr<Styles::Style>& removed) override;

private:
    void MarkUser(const Styles::StyleData& changed) const;

    const CascadeStyles& styles;
    IStyleJournal* next = nullptr;
};

} // namespace ReferenceHost
