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
}

Session::~Session()
{
    panels.clear();
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

Report Session::Inspect(const Selection& selection)
{
    Report report;
    report.selector = selection.selector;
    for (ReferenceHost::DrawingObject* object : selection.objects)
        report.targets.push_back(DescribeTarget(handover, *object));
    for (const std::unique_ptr<Panel>& panel : panels)
    {
        const PanelDescription& description = panel->GetDescription();
        const HandedTargets handed = handover.HandIn(panel->GetDataSource(), description, selection);
        report.panels.push_back(ReadPanel(panel->GetBoundNames(), description, handed));
    }
    return report;
}

} // namespace Workbench
