#include "tests/datasource/support/RecordingApp.h"

#include "conformance/HostQueries.h"
#include "tests/datasource/support/Description.h"

bool RecordingStylesApp::IsExcludedStyleName(const OvxStringT& name)
{
    log.Add("stylesApp.IsExcludedStyleName(" + Describe(name) + ")");
    return excludedNames.contains(name);
}

OvxStringT RecordingStylesApp::GetDisplayStyleName(const OvxStringT& name)
{
    log.Add("stylesApp.GetDisplayStyleName(" + Describe(name) + ")");
    return L"<" + name + L">";
}

Styles::StylePresetManager& RecordingStylesApp::GetStylePresetManager()
{
    log.Add("stylesApp.GetStylePresetManager()");
    return *presetManager;
}

void RecordingApp::QueryInterface(const InterfaceId& id, void** out)
{
    if (id == HostTests::kStylesSourceAppId && stylesApp != nullptr)
        *out = stylesApp;
}

IStyleSourceProvider* RecordingApp::GetActiveStyleSourceProvider()
{
    log.Add("app.GetActiveStyleSourceProvider()");
    return source == nullptr ? nullptr : &provider;
}

void RecordingApp::Provider::QueryInterface(const InterfaceId& id, void** out)
{
    if (id == HostTests::kStylesSourceId)
        *out = app.source;
}
