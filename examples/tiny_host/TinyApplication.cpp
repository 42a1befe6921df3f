// The application, and the ways to it: by interface, and through the services that any component can reach.

#include "tiny_host/TinyApplication.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/services/MessageMgr.h"
#include "host/services/OvxComponent.h"
#include "tiny_host/InterfaceNames.h"

#include <utility>

namespace TinyHost
{

namespace
{

constinit Application* current = nullptr;

constexpr int kNo = 7;

} // namespace

Application::Application(IDialogService* dialogService) : context(dialogService)
{
    current = this;
}

Application::~Application()
{
    current = nullptr;
}

void Application::SetActiveDocument(Document* document) noexcept
{
    activeDocument = document;
}

void Application::SetConfirmation(Confirmation newConfirmation)
{
    confirmation = std::move(newConfirmation);
}

void Application::RunIdle()
{
    OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance().DeliverPending();
    DestroyDataSourcesThatWait();
}

// It answers for the application and for the provider of the document's styles. Who asks takes the pointer
// for one to the interface itself, hence the casts.
void Application::QueryInterface(const InterfaceId& id, void** out)
{
    if (out == nullptr)
        return;
    if (id == kStylesSourceAppId)
        *out = static_cast<IStylesSourceApp*>(this);
    else if (id == kStylesSourceId && activeDocument != nullptr)
        *out = static_cast<IStylesSource*>(activeDocument);
}

IStyleSourceProvider* Application::GetActiveStyleSourceProvider()
{
    return activeDocument == nullptr ? nullptr : this;
}

bool Application::IsExcludedStyleName(const OvxStringT& /*name*/)
{
    return false;
}

OvxStringT Application::GetDisplayStyleName(const OvxStringT& name)
{
    return name;
}

Styles::StylePresetManager& Application::GetStylePresetManager()
{
    return presets;
}

IPanelHost* Application::GetPanelHost()
{
    return this;
}

IDataContext* Application::GetObjectPropertiesContext()
{
    return shownContext;
}

} // namespace TinyHost

IAppInterface* OvxComponent::GetAppInterface()
{
    return TinyHost::current;
}

int MessageMgr::ShowConfirmation(const OvxStringT& text, int flags)
{
    const bool canAsk = TinyHost::current != nullptr && TinyHost::current->GetConfirmation();
    return canAsk ? TinyHost::current->GetConfirmation()(text, flags) : TinyHost::kNo;
}
