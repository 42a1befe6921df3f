#include "reference_host/services/UserInterface.h"

namespace ReferenceHost
{

PanelHost::~PanelHost() = default;

void PanelHost::SetContext(IDataContext* current) noexcept
{
    context = current;
}

IDataContext* PanelHost::GetObjectPropertiesContext()
{
    return context;
}

UserInterface::~UserInterface() = default;

IPanelHost* UserInterface::GetPanelHost()
{
    return &panels;
}

} // namespace ReferenceHost
