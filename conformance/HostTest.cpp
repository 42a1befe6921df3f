#include "conformance/HostTest.h"

#include "conformance/HostQueries.h"
#include "host/services/OvxComponent.h"
#include "host/style_model/CategoryNames.h"

#include <stdexcept>
#include <string>

namespace HostTests
{

namespace
{

/// A host without one of its main parts cannot be tested any further.
template <class Part>
Part& Demand(Part* part, const char* name)
{
    if (part == nullptr)
        throw std::logic_error(std::string("the host gives no ") + name);
    return *part;
}

} // namespace

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

Styles::PropertyPath Path(std::initializer_list<const wchar_t*> keys)
{
    Styles::PropertyPath path;
    for (const wchar_t* const key : keys)
        path.push_back(Key(key));
    return path;
}

OvxUtils::Any OwnValue(const Styles::Style& style, const Styles::PropertyPath& path)
{
    return style.DoesOverridePathProperty(path) ? style.GetPathProperty(path) : OvxUtils::Any();
}

std::unique_ptr<Styles::Style> Change(const Styles::PropertyKey& category, const wchar_t* key, int value)
{
    auto change = std::make_unique<Styles::Style>(nullptr, category);
    change->SetProperty(Key(key), Number(value));
    return change;
}

HostTest::HostTest() : host(MakeHost())
{
    Demand(host.get(), "host at all")
        .RegisterProperties(Styles::FillStyleCategoryName, {Key(L"type"), Key(L"color"), Key(L"width")});
}

HostTest::~HostTest() = default;

IStylesSource& HostTest::GetSource() const
{
    IStyleSourceProvider& provider =
        Demand(host->GetApplication().GetActiveStyleSourceProvider(), "provider of the active style source");
    void* answer = nullptr;
    provider.QueryInterface(kStylesSourceId, &answer);
    return Demand(static_cast<IStylesSource*>(answer), "style source");
}

IStylesSourceApp& HostTest::GetStylesApp() const
{
    void* answer = nullptr;
    host->GetApplication().QueryInterface(kStylesSourceAppId, &answer);
    return Demand(static_cast<IStylesSourceApp*>(answer), "services for styles");
}

IDataContext& HostTest::GetContext() const
{
    IAppInterface& userInterface = Demand(OvxComponent::GetAppInterface(), "user interface");
    IPanelHost& panels = Demand(userInterface.GetPanelHost(), "panel host");
    return Demand(panels.GetObjectPropertiesContext(), "object-properties context");
}

Styles::Style& HostTest::Part(Styles::Style& whole, const Styles::PropertyKey& category)
{
    return Demand(Styles::GetStyleOrSubstyle(&whole, category, true), "substyle");
}

} // namespace HostTests
