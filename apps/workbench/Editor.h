#pragma once

#include "apps/workbench/Change.h"
#include "apps/workbench/EditError.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/Selection.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/Session.h"
#include "apps/workbench/StyleList.h"
#include "apps/workbench/StylePick.h"
#include "apps/workbench/UsageError.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Workbench
{

/// Changes the drawing of a session through its panels, one named step of history for each call.
///
/// Rows are named by panel and identifier ("fill.color"), whole styles by the panel alone ("fill").
/// Everything goes through the bound names of the loaded panels, on what is selected; at first that is all
/// objects. After each call the panels hold fresh targets, their listeners have been told, and the events
/// that waited were delivered: how often does not depend on the number of targets.
///
/// Every operation either does all that it was asked or changes nothing. All but the plain getters throw:
///
/// @throws UsageError for a row, panel, style or palette entry that is not there, with those that are, and
///         for a value that cannot be read, with what is accepted.
/// @throws EditError  for what the drawing in its present state does not allow; names the state.
class Editor
{
public:
    /// `itsSession` is borrowed, has its panels loaded and outlives the editor; one editor for a session.
    explicit Editor(Session& itsSession);

    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    /// Drops a group that is still open.
    ~Editor();

    /// Selects what the following calls are about.
    ///
    /// @throws SelectionError when the selector finds nothing, EditError while a group is open.
    void Select(const Selector& selector);

    [[nodiscard]] const Selection& GetSelection() const noexcept;

    /// Writes values, in order.
    void Set(const std::vector<Assignment>& assignments);

    /// Takes away the targets' own values, whatever the state of the rows.
    void Clear(const std::vector<OvxStringT>& rows);

    /// Runs the panels' revert command for rows, and for the whole style of panels that are named alone.
    void Revert(const std::vector<OvxStringT>& rowsOrPanels);

    /// Moves the own value of rows, or for panels that are named alone all own values, into the parents.
    ///
    /// Refuses what would change the look of a target: several targets have to agree in what they set and in
    /// what they inherit from.
    void ApplyToParent(const std::vector<OvxStringT>& rowsOrPanels);

    /// Detaches the colours of rows from their palette entries; they keep their look.
    void BreakLink(const std::vector<OvxStringT>& rows);

    /// Makes a named style from the selection by the command of a panel.
    ///
    /// @param name what to call it; without one it is called after the panel's category.
    /// @returns    the name of the new style.
    OvxStringT CreateStyle(const OvxStringT& panel, const std::optional<OvxStringT>& name);

    /// Runs the panel's command that opens the style which the targets inherit from, and selects that style.
    /// Changes nothing in the drawing and makes no step.
    ///
    /// @returns the name of the style that is selected now.
    OvxStringT EditStyle(const OvxStringT& panel);

    /// The list from which a panel's targets take their style, or that of the styles which it does not show,
    /// as the panel builds it now. Empty without targets.
    [[nodiscard]] StyleList ListStyles(const OvxStringT& panel, StyleListPart part);

    /// Picks from the panel's list of styles, and from its dialog where the list does not show the style.
    ///
    /// Objects take the style, all that are selected; a named style takes it as its parent. That no style is
    /// wanted acts on the first target only. A pick that the panel does nothing for is refused with the
    /// reason.
    Restyled Restyle(const OvxStringT& panel, const StylePick& pick);

    /// The presets that a panel offers, in its order.
    [[nodiscard]] std::vector<PresetReport> ListPresets(const OvxStringT& panel);

    /// What a preset sets: the panel as it shows a target that took it, with no rows but those that the
    /// preset sets. Changes nothing.
    [[nodiscard]] PanelReport DescribePreset(const OvxStringT& panel, const OvxStringT& name);

    /// Gives the targets what a preset sets in the panel's category; they inherit the rest of it. Refuses a
    /// preset that names a gradient or the like which the drawing does not define.
    void ApplyPreset(const OvxStringT& panel, const OvxStringT& name);

    /// Keeps the first target as a preset, through the panel's dialog. Changes nothing in the drawing.
    ///
    /// @param mayReplace what the question is answered with whether one of that name is replaced; without an
    ///                   answer whoever answers the session's dialogs is asked.
    /// @returns whether a preset of that name was replaced.
    bool AddPreset(const OvxStringT& panel, const OvxStringT& name, std::optional<bool> mayReplace);

    /// Drops a preset. Changes nothing in the drawing.
    void DeletePreset(const OvxStringT& panel, const OvxStringT& name);

    /// Adds entries to the palette, or changes those that are there and every value that refers to them.
    void DefineColours(const std::vector<PaletteAssignment>& colours);

    /// Opens a group: everything until EndGroup() is one step.
    void BeginGroup();

    /// Closes the group; without `commit` everything since BeginGroup() is taken back.
    void EndGroup(bool commit);

    [[nodiscard]] bool IsGroupOpen() const noexcept;

    /// Takes back the last step.
    ///
    /// @returns whether there was one.
    bool Undo();

    /// Does again what was taken back last.
    ///
    /// @returns whether there was a step.
    bool Redo();

    /// How many steps can be undone.
    [[nodiscard]] std::size_t GetStepCount() const;

    /// What the edits made of their targets: palette entries first, then the default styles, named styles in
    /// the order of the sheet, and objects in document order, rows in the order of the panels. Each is
    /// compared with what it was when the drawing was opened; what was undone does not show.
    [[nodiscard]] std::vector<Change> DescribeChanges();

    /// Saves the drawing as it is now, and before it the style sheets whose styles were changed.
    ///
    /// @param target   replaced as a whole or not at all; may be the file that was opened.
    /// @param options  hold for each of the files; their listener may stop it, and all is as it was then.
    /// @param warnings receives one line in UTF-8 for everything that the file cannot hold.
    /// @returns the files of style sheets that were written.
    /// @throws ReferenceHost::OverwriteRefusal when replacing a file would lose something and the options do
    ///         not force it, see ReferenceHost::Drawing::Save(); ReferenceHost::DocumentError when it cannot
    ///         be written; EditError while a group is open; ReferenceHost::OperationCancelled.
    std::vector<std::filesystem::path> Save(const std::filesystem::path& target,
                                            const ReferenceHost::SaveOptions& options,
                                            std::vector<std::string>& warnings);

    /// What the sources of this class share; for these alone.
    struct Workings;

private:
    std::unique_ptr<Workings> workings; ///< Never null.
};

} // namespace Workbench
