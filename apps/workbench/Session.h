#pragma once

#include "apps/workbench/DrawingStyles.h"
#include "apps/workbench/LibraryIntroduction.h"
#include "apps/workbench/NamedStyleEditor.h"
#include "apps/workbench/Panel.h"
#include "apps/workbench/PanelDescription.h"
#include "apps/workbench/PanelDialogs.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/Selection.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/TargetHandover.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/preset_store/PresetReports.h"
#include "reference_host/services/Application.h"
#include "reference_host/services/DataContext.h"
#include "reference_host/services/DocumentStylesSource.h"
#include "reference_host/services/HostObject.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Workbench
{

/// One open drawing with its panels.
///
/// Introduces library and reference host to each other for as long as it lives; a process has one at a time.
/// All on one thread.
class Session
{
public:
    /// A drawing that was opened and belongs to no session yet.
    struct OpenedDrawing
    {
        std::unique_ptr<ReferenceHost::Drawing> drawing; ///< Never null.
        std::vector<std::string> warnings;               ///< What was repaired or passed over in it.
    };

    /// Opens a drawing for a session that begins later: the one before may still be there. The categories
    /// that the described panels bring are part of it, whether or not the panels are loaded later.
    ///
    /// @param progress is told how far it is, and may stop it.
    /// @throws ReferenceHost::DocumentError when the drawing cannot be read.
    /// @throws ReferenceHost::OperationCancelled
    [[nodiscard]] static OpenedDrawing OpenDrawing(const std::filesystem::path& file,
                                                   const std::vector<PanelDescription>& describedPanels,
                                                   const ReferenceHost::ProgressListener& progress = {});

    /// Begins with a drawing that was opened.
    explicit Session(OpenedDrawing opened);

    /// Begins with what OpenDrawing() opens.
    ///
    /// @throws ReferenceHost::DocumentError when the drawing cannot be read.
    Session(const std::filesystem::path& file, const std::vector<PanelDescription>& describedPanels);

    /// Begins with a blank drawing, for what needs none: presets are the person's and not a drawing's.
    explicit Session(const std::vector<PanelDescription>& describedPanels);

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Ends the panels, then the drawing.
    ~Session();

    /// What was repaired or passed over in the drawing, one line in UTF-8 each.
    [[nodiscard]] const std::vector<std::string>& GetWarnings() const noexcept { return warnings; }

    [[nodiscard]] ReferenceHost::Drawing& GetDrawing() noexcept { return *drawing; }

    /// The dialogs that panels ask for.
    [[nodiscard]] PanelDialogs& GetDialogs() noexcept { return dialogs; }

    /// What was wrong with presets since this was last asked, one line in UTF-8 each: those that were passed
    /// over, each once.
    [[nodiscard]] std::vector<std::string> TakePresetWarnings();

    /// What kept a preset from being kept or dropped since this was last asked; empty for nothing.
    [[nodiscard]] std::string TakePresetFailure();

    /// What the drawing's styles are, in words.
    [[nodiscard]] const TargetHandover& GetStyles() const noexcept { return handover; }

    /// Loads panels behind those that are loaded already. One that cannot be loaded leaves the others alone.
    ///
    /// @returns one line in UTF-8 for each that cannot be loaded.
    [[nodiscard]] std::vector<std::string> LoadPanels(const std::vector<PanelDescription>& descriptions);

    /// The loaded panels, in order.
    [[nodiscard]] const std::vector<std::unique_ptr<Panel>>& GetPanels() const noexcept { return panels; }

    /// What panels find as the editor of named styles.
    [[nodiscard]] NamedStyleEditor& GetStyleEditor() noexcept { return styleEditor; }

    /// Finds what a selector is about.
    ///
    /// @throws SelectionError when it finds nothing, see FindSelection().
    [[nodiscard]] Selection Select(const Selector& selector);

    /// Hands a selection in to all panels, and to the style source as what is selected.
    ///
    /// @returns what each panel holds now, in their order.
    std::vector<HandedTargets> HandIn(const Selection& selection);

    /// How often a selection was handed in: whoever relies on his own being in force notices another's.
    [[nodiscard]] std::size_t GetHandoverCount() const noexcept { return handovers; }

    /// Hands a selection in to all panels and reads what they show.
    ///
    /// @throws ReferenceHost::DocumentError when a panel answers something that no panel should.
    [[nodiscard]] Report Inspect(const Selection& selection);

private:
    void TakePresetProblem(ReferenceHost::PresetProblem problem, const std::string& line);

    std::vector<std::string> warnings;
    std::set<std::string> toldPresetWarnings;
    std::vector<std::string> presetWarnings; ///< Those that nobody asked for yet.
    std::string presetFailure;
    ReferenceHost::PresetReporter reporterBefore;
    ReferenceHost::Application application;
    LibraryIntroduction introduction;
    std::unique_ptr<ReferenceHost::Drawing> drawing; ///< Never null.
    DrawingStyles drawingStyles;
    ReferenceHost::DocumentStylesSource stylesSource;
    TargetHandover handover;
    ReferenceHost::HostObject hostObject;
    PanelDialogs dialogs;
    NamedStyleEditor styleEditor;
    ReferenceHost::DataContext context;
    std::size_t handovers = 0;
    std::vector<std::unique_ptr<Panel>> panels; ///< None null.
};

} // namespace Workbench
