// What the module answers where the host offers no services for styles. Keeps nothing.

#include "module/DefaultStylesApp.h"

#include "module/DefaultStylePresetManager.h"

IStylesSourceApp& DefaultStylesApp::GetInstance()
{
    static DefaultStylesApp instance;
    return instance;
}

bool DefaultStylesApp::IsExcludedStyleName(const OvxStringT& /*name*/)
{
    return false;
}

OvxStringT DefaultStylesApp::GetDisplayStyleName(const OvxStringT& name)
{
    return name;
}

Styles::StylePresetManager& DefaultStylesApp::GetStylePresetManager()
{
    static DefaultStylePresetManager manager;
    return manager;
}
