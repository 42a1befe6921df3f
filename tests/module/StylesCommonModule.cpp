// A loadable module that does nothing but hand out its ways to StylesCommon. Built several times, so that
// each build brings a copy of the template's state.

#include "tests/module/StylesCommonModule.h"

#include "host/style_model/IStylesSourceApp.h"
#include "host/utils/Singleton.h"
#include "module/StylesCommon.h"

namespace
{

using ModuleSingleton = OvxUtils::Singleton<StylesCommon>;

constexpr StylesCommonModule kModule{
    .instance = [] { return &ModuleSingleton::GetInstance(); },
    .instanceOfLibrary = [] { return &StylesCommon::GetInstance(); },
    .hasInstance = [] { return ModuleSingleton::HasInstance(); },
    .hasInstanceOfLibrary = [] { return StylesCommon::HasInstance(); },
    .releaseInstance = [](bool final) { ModuleSingleton::ReleaseInstance(final); },
    .releaseInstanceOfLibrary = [](bool final) { StylesCommon::ReleaseInstance(final); },
    .initialize = [](IOrvexCmn_App* app) { ModuleSingleton::GetInstance().Initialize(app); },
    .app = [] { return StylesCommon::GetApp(); },
    .useFallbacks = [] { static_cast<void>(StylesCommon::StylesApp().GetStylePresetManager()); },
};

} // namespace

extern "C" __attribute__((visibility("default"))) const StylesCommonModule* GetStylesCommonModule();

const StylesCommonModule* GetStylesCommonModule()
{
    return &kModule;
}
