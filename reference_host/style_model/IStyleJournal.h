#pragma once

#include "host/style_model/Style.h"

#include <memory>

namespace ReferenceHost
{

/// Hears of every change to the styles of a document before it happens.
///
/// The outermost style of each whole borrows the journal of its document; styles that stand by themselves
/// have none. What an operation throws keeps the change from happening.
class IStyleJournal
{
public:
    /// The own value of one property of `data` changes now; it may be set, changed or removed.
    virtual void BeforeStoring(Styles::StyleData& data, const Styles::PropertyKey& key) = 0;

    /// The own values, the parent, the category or the default style of `data` may change now.
    virtual void BeforeChange(Styles::StyleData& data) = 0;

    /// A substyle is put in place under `key` of `owner`, where nothing is any more.
    virtual void BeforePlacing(Styles::Style& owner, const Styles::PropertyKey& key) = 0;

    /// The substyle under `key` of `owner` is taken out: the journal takes it over and leaves null. It still
    /// knows its owner; whoever keeps it cuts it off.
    virtual void TakeRemoved(Styles::Style& owner, const Styles::PropertyKey& key,
                             std::unique_ptr<Styles::Style>& removed) = 0;

protected:
    ~IStyleJournal() = default;
};

} // namespace ReferenceHost
