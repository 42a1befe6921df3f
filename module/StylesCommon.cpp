// Answers which application this is, which services it offers for styles, and which document's styles are
// active. Keeps the application pointer; the fallbacks stand in DefaultStylesApp.

#include "module/StylesCommon.h"

#include "host/services/IOrvexCmn_App.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "host/utils/Singleton.h"
#include "module/DefaultStylesApp.h"

namespace
{

using Singleton = OvxUtils::Singleton<StylesCommon>;

constexpr InterfaceId kStylesSourceAppId{
    {0xa7, 0x99, 0xbe, 0x04, 0x10, 0x4f, 0xa8, 0x37, 0x40, 0x97, 0x9c, 0x8c, 0xdc, 0xa8, 0x2a, 0xac}};

constexpr InterfaceId kStylesSourceId{
    {0xe3, 0x44, 0x8c, 0x95, 0x96, 0x12, 0xb6, 0x51, 0x4f, 0x4e, 0xa4, 0x25, 0x5b, 0xaa, 0x76, 0xfa}};

template <class Interface, class Queried>
Interface* Query(Queried& queried, const InterfaceId& id)
{
    void* found = nullptr;
    queried.QueryInterface(id, &found);
    return static_cast<Interface*>(found);
}

} // namespace

bool StylesCommon::Initialize(IOrvexCmn_App* newApp)
{
    app = newApp;
    return true;
}

StylesCommon& StylesCommon::GetInstance()
{
    return Singleton::GetInstance();
}

bool StylesCommon::HasInstance()
{
    return Singleton::HasInstance();
}

void StylesCommon::ReleaseInstance(bool final)
{
    Singleton::ReleaseInstance(final);
}

IOrvexCmn_App* StylesCommon::GetApp()
{
    return GetInstance().app;
}

IStylesSourceApp& StylesCommon::StylesApp()
{
    IOrvexCmn_App* app = GetApp();
    if (app == nullptr)
        return DefaultStylesApp::GetInstance();

    auto* stylesApp = Query<IStylesSourceApp>(*app, kStylesSourceAppId);
    return stylesApp == nullptr ? DefaultStylesApp::GetInstance() : *stylesApp;
}

IStylesSource* StylesCommon::GetActiveStyleSource()
{
    IOrvexCmn_App* app = GetApp();
    if (app == nullptr)
        return nullptr;

    IStyleSourceProvider* provider = app->GetActiveStyleSourceProvider();
    return provider == nullptr ? nullptr : Query<IStylesSource>(*provider, kStylesSourceId);
}
