#include "apps/workbench/Session.h"

#include "apps/workbench/PanelReading.h"
#include "apps/workbench/SelectionSearch.h"

#include <exception>

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

Session::Session(const std::filesystem::path& file, const std::vector<PanelDescription>& describedPanels)
    : introduction(application),
      drawing(ReferenceHost::Drawing::Open(file, warnings, TakeCategories(describedPanels))),
      drawingStyles(*drawing),
      stylesSource(drawingStyles),
      handover(*drawing),
      context(&hostObject, nullptr)
{
    application.OpenDocument(&stylesSource, &drawingStyles);
    // The panels of a session edit the objects of its drawing: theirs is the host's current context.
    application.SetObjectPropertiesContext(&context);
    context.AddDataSource(OvxStringT(NamedStyleEditor::kName), &styleEditor);
}

Session::~Session()
{
    panels.clear();
    context.RemoveDataSource(OvxStringT(NamedStyleEditor::kName));
    application.SetObjectPropertiesContext(nullptr);
    application.CloseDocument();
}

std::vector<std::string> Session::LoadPanels(const std::vector<PanelDescription>& descriptions)
{
    std::vector<std::string> problems;
    for (const PanelDescription& description : descriptions)
    {
        // A module is somebody else's code: whatever it throws while it is set up is its own problem.
        try
        {
            panels.push_back(std::make_unique<Panel>(description, context));
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
