#pragma once

#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/SheetJournal.h"
#include "reference_host/document/StyleSheetLink.h"

#include "host/utils/OvxStringT.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ReferenceHost
{

class NamedStyleSheet;
class Warnings;
struct DrawingData;

/// A style sheet outside a drawing: a file that is read as a drawing of its own, whose named styles the other
/// may inherit from.
struct ExternalSheet
{
    explicit ExternalSheet(const StyleSheetLink& itsLink);
    ExternalSheet(const ExternalSheet&) = delete;
    ExternalSheet& operator=(const ExternalSheet&) = delete;
    ~ExternalSheet();

    StyleSheetLink link;
    std::unique_ptr<DrawingData> data;     ///< Never null once the sheet is open. Its path leads to the file.
    std::unique_ptr<SheetJournal> journal; ///< Null until the drawing starts its history.
    std::optional<std::string> savedBytes; ///< What was written to the file last; none before that.
};

/// The style sheets outside one drawing, in the order of their links.
///
/// Their styles are external to the drawing, under the name of their sheet; one that may be edited carries
/// the reference of the sheet as its link. They fall back to the drawing's default style, not to that of
/// their own file: what the drawing shows of them is what its shapes get.
class ExternalSheets
{
public:
    ExternalSheets();
    ExternalSheets(const ExternalSheets&) = delete;
    ExternalSheets& operator=(const ExternalSheets&) = delete;
    ~ExternalSheets();

    /// Opens the sheets that a drawing links to, and lets the names of its styles lead to theirs where it has
    /// none of that name itself. The drawing's default style is complete, its own named styles come later.
    ///
    /// A sheet that cannot be used is left out with one warning. Links in sheets are not followed.
    void Open(DrawingData& drawing, Warnings& warnings, const ProgressSpan& progress);

    /// Makes the styles of all sheets tell a history of their changes; it is borrowed.
    void StartHistory(IStyleJournal& history);

    [[nodiscard]] const std::vector<std::unique_ptr<ExternalSheet>>& GetAll() const noexcept
    {
        return sheets;
    }

    /// The sheet of that name; null without one.
    [[nodiscard]] const ExternalSheet* Find(const OvxStringT& sheetName) const;

    /// The first sheet that has a named style of that name; null without one.
    [[nodiscard]] const ExternalSheet* FindHolder(const OvxStringT& styleName) const;

private:
    [[nodiscard]] std::unique_ptr<ExternalSheet> OpenOne(const StyleSheetLink& link, DrawingData& drawing,
                                                         Warnings& warnings,
                                                         const ProgressSpan& progress) const;

    std::vector<std::unique_ptr<ExternalSheet>> sheets; ///< None null.
};

/// How messages call a sheet: `sketch.fodg, style sheet "House"`.
[[nodiscard]] std::string LabelOfSheet(const DrawingData& drawing, const StyleSheetLink& link);

} // namespace ReferenceHost
