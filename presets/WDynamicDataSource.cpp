// Bound properties that are added by name while the program runs.

#include "presets/WDynamicDataSource.h"

#include <utility>

namespace
{

constexpr OvxStringViewT kGetPrefix = L"get_";

} // namespace

WDynamicPropertyBase* WDynamicDataSource::FindDynamicProperty(const OvxStringT& name) const
{
    return properties.Find(name);
}

void WDynamicDataSource::AddDynamicProperty(std::unique_ptr<WDynamicPropertyBase> property)
{
    const OvxStringT name = property->GetName();
    properties.Set(name, std::move(property));
}

const DynamicDelegate* WDynamicDataSource::GetDynamicDelegate(OvxStringViewT name) const
{
    const DynamicDelegate* registered = IReflectable::GetDynamicDelegate(name);
    if (registered != nullptr || !name.starts_with(kGetPrefix))
        return registered;
    const WDynamicPropertyBase* property = properties.Find(OvxStringT(name.substr(kGetPrefix.size())));
    return property == nullptr ? nullptr : &property->GetGetter();
}

RuntimeType WDynamicDataSource::GetDynamicType(OvxStringViewT name) const
{
    const RuntimeType registered = IReflectable::GetDynamicType(name);
    const WDynamicPropertyBase* property = properties.Find(OvxStringT(name));
    return property == nullptr || !registered.IsEmpty() ? registered : property->GetType();
}
