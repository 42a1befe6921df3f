#include "bench/targets/LibraryTargets.h"

#include "host/style_model/PropertyPath.h"
#include "reference_host/services/Application.h"

namespace Bench
{

LibraryTargets::LibraryTargets(const StyleTree& styles) : tree(styles)
{
    ReferenceHost::Application::GetCurrent()->SetObjectPropertiesContext(&objectProperties);
    panel.FinishConstruction();
    for (StylePanel& sibling : siblings)
    {
        sibling.FinishConstruction();
        sibling.SetTargetStyle(tree.Objects(), false, Styles::PropertyPath(), {});
    }
}

LibraryTargets::~LibraryTargets()
{
    ReferenceHost::Application::GetCurrent()->SetObjectPropertiesContext(nullptr);
}

void LibraryTargets::TieSiblings()
{
    for (StylePanel& sibling : siblings)
        panel.RegisterSiblingDS(&sibling);
}

std::size_t LibraryTargets::SetTargets()
{
    panel.SetTargetStyle(tree.Objects(), false, Styles::PropertyPath(), {});
    return panel.GetNumTargetStyles();
}

} // namespace Bench
