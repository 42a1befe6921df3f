#pragma once

#include "host/style_model/IMultipleStyleModifier.h"
#include "reference_host/history/History.h"

#include <cstddef>

namespace ReferenceHost
{

/// Writes one change to many styles of a document. Begin and End open and close steps of its history, so that
/// everything between them is one step; a Modify outside of any is a step of its own.
class DocumentStyleModifier final : public IMultipleStyleModifier
{
public:
    /// `itsHistory` is borrowed.
    explicit DocumentStyleModifier(History& itsHistory);

    void Begin() override;

    /// Does nothing without an open Begin.
    void End() override;

    /// Writes `paths` to the targets, and `overridePaths` to the styles in `objects`, or to the targets when
    /// there are none.
    ///
    /// A path whose first key is the category of the style that is written to stands for what follows, with
    /// the values from the substyle of that name in `changeStyle`; a path of that key alone stands for
    /// everything that the style sets. Styles of a sheet outside the document are left alone unless they have
    /// a link by which they may be edited.
    void Modify(const std::vector<Styles::Style*>& targets,
                const std::map<Styles::Style*, std::size_t>& objects, const Styles::PropertyPaths& paths,
                std::unique_ptr<Styles::Style> changeStyle, const Styles::PropertyPaths& overridePaths,
                bool reserved, bool bound, Styles::IModifyStyleOverrides* transactionOverrides) override;

private:
    History& history;
    std::size_t openCount = 0; ///< Begins without their End.
};

/// Tells whether a style lies in a sheet outside the document, and may not be edited there.
[[nodiscard]] bool IsReadOnly(const Styles::Style& style);

} // namespace ReferenceHost
