#pragma once

#include "apps/workbench/Change.h"
#include "apps/workbench/Panel.h"
#include "apps/workbench/RowPlace.h"
#include "apps/workbench/Selection.h"
#include "apps/workbench/Session.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/services/DataContext.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Workbench
{

/// Remembers which rows of which targets edits touched, and tells what became of them since the drawing was
/// opened.
///
/// Reads through panels of its own, so that those of the session and their listeners are left alone. What is
/// kept grows with the targets that are touched, not with the number of edits.
class ChangeLedger
{
public:
    /// The session is borrowed.
    explicit ChangeLedger(Session& itsSession) : session(itsSession) {}

    /// Remembers that a row of each target of a selection is touched. A whole style, and the name of its
    /// parent, stand for all rows of all panels.
    void Note(const Selection& selection, const RowPlace& place);

    /// Remembers that a named style was not there before.
    void NoteCreated(const OvxStringT& styleName);

    /// Remembers that a palette entry is touched.
    void NotePalette(const OvxStringT& name);

    /// What shows otherwise now, in the order that Editor::DescribeChanges() promises.
    [[nodiscard]] std::vector<Change> Describe();

private:
    /// A panel of the session, and a row of it, each by its number.
    using RowNumber = std::pair<std::size_t, std::size_t>;

    /// What a target shows in a row.
    struct RowFacts
    {
        ReportValue value;
        OvxStringT link;
        ActivePropertyState state = ActivePropertyState::None;
        bool isLocal = false;

        friend bool operator==(const RowFacts&, const RowFacts&) = default;
    };

    using RowsFacts = std::map<RowNumber, RowFacts>;

    struct Target
    {
        Selection selection; ///< Of this target alone.
        bool isCreated = false;
        std::set<RowNumber> rows;
    };

    using PaletteLooks = std::map<OvxStringT, std::optional<CLR_COLORSPEC::Rgb>>;

    void NeedReaders();
    [[nodiscard]] std::vector<RowNumber> AllRows() const;
    [[nodiscard]] RowNumber NumberOf(const RowPlace& place) const;
    [[nodiscard]] const RowDescription& RowOf(RowNumber number) const;
    [[nodiscard]] Target& NeedTarget(const Selection& single);
    [[nodiscard]] std::vector<RowNumber> FindNew(const std::vector<RowNumber>& rows);
    void HandIn(std::size_t panel, const Selection& single) const;
    [[nodiscard]] RowFacts Read(RowNumber number) const;
    [[nodiscard]] RowsFacts ReadRows(const Target& target) const;
    [[nodiscard]] PaletteLooks ReadPalette() const;
    [[nodiscard]] std::vector<const Target*> TargetsInOrder() const;
    void DescribePalette(const PaletteLooks& before, std::vector<Change>& changes) const;
    void DescribeTarget(const Target& target, const RowsFacts& before, std::vector<Change>& changes) const;

    Session& session;
    ReferenceHost::DataContext context{nullptr, nullptr};
    std::vector<std::unique_ptr<Panel>> readers; ///< A second one of each panel of the session, in its order.
    std::unordered_map<std::wstring, Target> targets; ///< By their selectors.
    std::set<OvxStringT> palette;

    /// Which rows the selection that was noted last was noted for.
    OvxStringT notedSelector;
    std::set<RowNumber> notedRows;
};

} // namespace Workbench
