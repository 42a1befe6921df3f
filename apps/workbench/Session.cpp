#include "apps/workbench/Session.h"

#include "apps/workbench/PanelReading.h"
#include "apps/workbench/SelectionSearch.h"

#include <exception>
#include <utility>

namespace Workbench
{
namespace
{

/// The properties of all categories that panels bring along; makes the categories known.
std::vector<ReferenceHost::PropertyMapping> TakeCategories(const std::vector<PanelDescription>& panels)
{
    std::vector<ReferenceHost::PropertyMapping> mappings;
    for (const PanelDescription& panel : panels)
    {
        if (!panel.ownCategory)
            continue;
        TargetHandover::RegisterCategory(*panel.ownCategory);
        mappings.insert(mappings.end(), panel.ownCategory->mappings.begin(),
                        panel.ownCategory->mappings.end());
    }
    return mappings;
}

TargetReport DescribeTarget(const TargetHandover& handover, ReferenceHost::DrawingObject& object)
{
    TargetReport target;
    target.id = object.GetId();
    target.name = object.GetName();
    target.kind = OvxStringT(object.GetKind());
    target.style = handover.NamedStyleOf(object);
    target.parents = handover.AncestorsOf(target.style);
    target.units = object.GetParagraphs().size() + object.GetRuns().size();
    return target;
}

} // namespace

Session::OpenedDrawing Session::OpenDrawing(const std::filesystem::path& file,
                                            const std::vector<PanelDescription>& describedPanels,
                                            const ReferenceHost::ProgressListener& progress)
{
    OpenedDrawing opened;
    opened.drawing =
        ReferenceHost::Drawing::Open(file, opened.warnings, TakeCategories(describedPanels), progress);
    return opened;
}

Session::Session(const std::filesystem::path& file, const std::vector<PanelDescription>& describedPanels)
    : Session(OpenDrawing(file, describedPanels))
{
}

Session::Session(const std::vector<PanelDescription>& describedPanels)
    : Session(OpenedDrawing{ReferenceHost::Drawing::CreateBlank(TakeCategories(describedPanels)), {}})
{
}

Session::Session(OpenedDrawing opened)
    : warnings(std::move(opened.warnings)),
      introduction(application),
      drawing(std::move(opened.drawing)),
      drawingStyles(*drawing),
      stylesSource(drawingStyles),
      handover(*drawing),
      context(&hostObject, &application.GetDialogs())
{
    application.OpenDocument(&stylesSource, &drawingStyles);
    application.GetDialogs().SetFrontEnd(&dialogs);
    stylesSource.SetPresetKeeper(&application.GetPresets());
    reporterBefore =
        ReferenceHost::SetPresetReporter([this](ReferenceHost::PresetProblem problem, const std::string& line)
                                         { TakePresetProblem(problem, line); });
    // The panels of a session edit the objects of its drawing: theirs is the host's current context.
    application.SetObjectPropertiesContext(&context);
    context.AddDataSource(OvxStringT(NamedStyleEditor::kName), &styleEditor);
    // Before the panels, which listen to it.
    context.CreateDataSource(L"StylePresets");
}

Session::~Session()
{
    panels.clear();
    context.RemoveDataSource(L"StylePresets");
    context.RemoveDataSource(OvxStringT(NamedStyleEditor::kName));
    application.SetObjectPropertiesContext(nullptr);
    ReferenceHost::SetPresetReporter(reporterBefore);
    application.GetDialogs().SetFrontEnd(nullptr);
    application.CloseDocument();
}

std::vector<std::string> Session::TakePresetWarnings()
{
    return std::exchange(presetWarnings, {});
}

std::string Session::TakePresetFailure()
{
    return std::exchange(presetFailure, {});
}

/// Presets are read again and again; what is wrong with one is told once.
void Session::TakePresetProblem(ReferenceHost::PresetProblem problem, const std::string& line)
{
    if (problem == ReferenceHost::PresetProblem::NotChanged)
        presetFailure = line;
    else if (toldPresetWarnings.insert(line).second)
        presetWarnings.push_back(line);
}

std::vector<std::string> Session::LoadPanels(const std::vector<PanelDescription>& descriptions)
{
    std::vector<std::string> problems;
    for (const PanelDescription& description : descriptions)
    {
        // A module is somebody else's code: whatever it throws while it is set up is its own problem.
        try
        {
            auto panel = std::make_unique<Panel>(description, context);
            TargetHandover::OfferPresets(stylesSource, panel->GetDataSource(), description);
            panels.push_back(std::move(panel));
        }
        catch (const std::exception& error)
        {
            problems.emplace_back(error.what());
        }
    }
    return problems;
}

Selection Session::Select(const Selector& selector)
{
    return FindSelection(*drawing, handover, selector);
}

std::vector<HandedTargets> Session::HandIn(const Selection& selection)
{
    ++handovers;
    handover.HandInAsSelected(stylesSource, selection);
    std::vector<HandedTargets> handed;
    for (const std::unique_ptr<Panel>& panel : panels)
        handed.push_back(handover.HandIn(panel->GetDataSource(), panel->GetDescription(), selection));
    return handed;
}

Report Session::Inspect(const Selection& selection)
{
    const std::vector<HandedTargets> handed = HandIn(selection);
    Report report;
    report.selector = selection.selector;
    for (ReferenceHost::DrawingObject* object : selection.objects)
        report.targets.push_back(DescribeTarget(handover, *object));
    for (std::size_t index = 0; index < panels.size(); ++index)
        report.panels.push_back(
            ReadPanel(panels[index]->GetBoundNames(), panels[index]->GetDescription(), handed[index]));
    return report;
}

} // namespace Workbench
