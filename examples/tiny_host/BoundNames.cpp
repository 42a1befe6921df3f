// Properties and commands by name: registering, listing, reading, writing and running them.

#include "host/data_binding/IReflectable.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>

struct IReflectable::Registry
{
    std::map<OvxStringT, DynamicDelegate>
        delegates;                           ///< By full names: "get_N", "put_N", or a command's name.
    std::map<OvxStringT, RuntimeType> types; ///< Of properties, by their names.
    std::vector<OvxStringT> names;           ///< Of properties and commands, in order.
};

namespace
{

bool IsCommand(const DynamicDelegate* delegate)
{
    return delegate != nullptr && delegate->type.Is<void()>();
}

/// The property or command that a delegate serves. A command may have a name that looks like a getter's.
std::wstring_view ServedName(std::wstring_view name, const RuntimeType& type)
{
    const bool isAccessor = name.starts_with(L"get_") || name.starts_with(L"put_");
    return isAccessor && !type.Is<void()>() ? name.substr(4) : name;
}

const DynamicDelegate& Need(const DynamicDelegate* delegate, const char* what, OvxStringViewT name)
{
    if (delegate == nullptr)
        throw std::out_of_range(std::string("There is no ") + what + " \"" + OvxUtils::ToUtf8(name) + '"');
    return *delegate;
}

} // namespace

IReflectable::IReflectable() : registry(std::make_unique<Registry>())
{
}

IReflectable::~IReflectable() = default;

void IReflectable::_AddDelegate(OvxStringViewT name, OvxUtils::RepeatingCallbackMemento callback,
                                const RuntimeType& type)
{
    const OvxStringT served(ServedName(name, type));
    if (std::ranges::find(registry->names, served) == registry->names.end())
        registry->names.push_back(served);
    registry->delegates.insert_or_assign(OvxStringT(name), DynamicDelegate{std::move(callback), type});
}

void IReflectable::_AddType(OvxStringViewT name, const RuntimeType& type)
{
    registry->types.insert_or_assign(OvxStringT(name), type);
}

bool IReflectable::IsWritableProperty(OvxStringViewT name) const
{
    const RuntimeType type = GetDynamicType(name);
    return !type.IsEmpty() && !type.IsConst();
}

const DynamicDelegate* IReflectable::GetDynamicDelegate(OvxStringViewT name) const
{
    const auto found = registry->delegates.find(OvxStringT(name));
    return found == registry->delegates.end() ? nullptr : &found->second;
}

RuntimeType IReflectable::GetDynamicType(OvxStringViewT name) const
{
    const auto found = registry->types.find(OvxStringT(name));
    return found == registry->types.end() ? RuntimeType() : found->second;
}

std::vector<OvxStringT> IReflectable::GetNames() const
{
    return registry->names;
}

bool IReflectable::HasProperty(OvxStringViewT name) const
{
    return GetDynamicDelegate(L"get_" + name) != nullptr;
}

RuntimeType IReflectable::GetTypeOf(OvxStringViewT name) const
{
    const RuntimeType type = GetDynamicType(name);
    return type.IsEmpty() && IsCommand(GetDynamicDelegate(name)) ? runtime_type<void()>() : type;
}

// In the following, copies of the callbacks: what is called may register its name anew, or end this object.

void IReflectable::Invoke(OvxStringViewT name)
{
    const DynamicDelegate* const command = GetDynamicDelegate(name);
    const auto callback = Need(IsCommand(command) ? command : nullptr, "command", name).callback;
    callback.Invoke();
}

OvxUtils::Any IReflectable::ReadAny(OvxStringViewT name) const
{
    const auto callback = FindGetter(name).callback;
    return callback.Invoke();
}

void IReflectable::WriteAny(OvxStringViewT name, const OvxUtils::Any& value)
{
    const auto callback = FindSetter(name).callback;
    callback.Invoke(value);
}

const DynamicDelegate& IReflectable::FindGetter(OvxStringViewT name) const
{
    return Need(GetDynamicDelegate(L"get_" + name), "property", name);
}

const DynamicDelegate& IReflectable::FindSetter(OvxStringViewT name) const
{
    return Need(GetDynamicDelegate(L"put_" + name), "writable property", name);
}
