#include "reference_host/services/Application.h"

#include "host/services/OvxComponent.h"
#include "reference_host/services/InterfaceIds.h"

namespace ReferenceHost
{

namespace
{

constinit Application* currentApplication = nullptr;

} // namespace

Application::Application()
{
    currentApplication = this;
}

Application::~Application()
{
    if (currentApplication == this)
        currentApplication = nullptr;
}

Application* Application::GetCurrent() noexcept
{
    return currentApplication;
}

void Application::OpenDocument(IStylesSource* source, const IDocumentStyles* document) noexcept
{
    activeSource.SetSource(source);
    styles.SetDocument(document);
}

void Application::CloseDocument() noexcept
{
    OpenDocument(nullptr, nullptr);
}

void Application::SetObjectPropertiesContext(IDataContext* context) noexcept
{
    userInterface.GetPanels().SetContext(context);
}

void Application::QueryInterface(const InterfaceId& id, void** out)
{
    // The exact interface, because whoever asks takes the pointer for one to it.
    if (out != nullptr && id == kStylesSourceAppId)
        *out = static_cast<IStylesSourceApp*>(&styles);
}

IStyleSourceProvider* Application::GetActiveStyleSourceProvider()
{
    return activeSource.GetSource() == nullptr ? nullptr : &activeSource;
}

} // namespace ReferenceHost

IAppInterface* OvxComponent::GetAppInterface()
{
    ReferenceHost::Application* application = ReferenceHost::Application::GetCurrent();
    return application == nullptr ? nullptr : &application->GetUserInterface();
}
