#include "host/data_binding/IReflectable.h"

#include "host/utils/Utf8.h"
#include "reference_host/data_binding/NameLookup.h"
#include "reference_host/data_binding/UiThread.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

struct IReflectable::Registry
{
    ReferenceHost::NameMap<DynamicDelegate> delegates; ///< By the names under which they were registered.
    ReferenceHost::NameMap<RuntimeType> types;         ///< By property name.
    std::vector<OvxStringT> names;                     ///< Properties and commands, in order, each once.
};

namespace
{

constexpr std::wstring_view kGetterPrefix = L"get_";
constexpr std::wstring_view kSetterPrefix = L"put_";

/// A name with a prefix in front, on the stack unless it is unusually long: reading a property allocates
/// nothing.
class PrefixedName
{
public:
    PrefixedName(std::wstring_view prefix, std::wstring_view name)
    {
        const std::size_t length = prefix.size() + name.size();
        wchar_t* to = nearby.data();
        if (length > nearby.size())
        {
            faraway.resize(length);
            to = faraway.data();
        }
        std::copy(name.begin(), name.end(), std::copy(prefix.begin(), prefix.end(), to));
        view = std::wstring_view(to, length);
    }

    PrefixedName(const PrefixedName&) = delete;
    PrefixedName& operator=(const PrefixedName&) = delete;

    operator OvxStringViewT() const noexcept { return view; }

private:
    std::array<wchar_t, 64> nearby; // Only what is read of it is written.
    std::wstring faraway;
    std::wstring_view view;
};

/// The property or command that a delegate belongs to. A command keeps its name even if it begins like a
/// getter.
std::wstring_view NameServedBy(std::wstring_view delegateName, const RuntimeType& type)
{
    const bool isAccessor =
        delegateName.starts_with(kGetterPrefix) || delegateName.starts_with(kSetterPrefix);
    if (type.Is<void()>() || !isAccessor)
        return delegateName;
    return delegateName.substr(kGetterPrefix.size());
}

bool IsCommand(const DynamicDelegate* delegate)
{
    return delegate != nullptr && delegate->type.Is<void()>();
}

[[noreturn]] void ThrowUnknown(const char* what, std::wstring_view name)
{
    throw std::out_of_range(std::string("no such ") + what + ": " + OvxUtils::ToUtf8(name));
}

} // namespace

IReflectable::IReflectable() : registry(std::make_unique<Registry>())
{
}

IReflectable::~IReflectable() = default;

void IReflectable::_AddDelegate(OvxStringViewT name, OvxUtils::RepeatingCallbackMemento callback,
                                const RuntimeType& type)
{
    ReferenceHost::UiThread::Check();
    const OvxStringT served(NameServedBy(name, type));
    std::vector<OvxStringT>& names = registry->names;
    const bool isNew = std::find(names.begin(), names.end(), served) == names.end();
    if (isNew)
        names.push_back(served);
    try
    {
        registry->delegates.insert_or_assign(OvxStringT(name), DynamicDelegate{std::move(callback), type});
    }
    catch (...)
    {
        // A name is not listed that nothing is called by.
        if (isNew)
            names.pop_back();
        throw;
    }
}

void IReflectable::_AddType(OvxStringViewT name, const RuntimeType& type)
{
    ReferenceHost::UiThread::Check();
    registry->types.insert_or_assign(OvxStringT(name), type);
}

bool IReflectable::IsWritableProperty(OvxStringViewT name) const
{
    const RuntimeType type = GetDynamicType(name);
    return !type.IsEmpty() && !type.IsConst();
}

const DynamicDelegate* IReflectable::GetDynamicDelegate(OvxStringViewT name) const
{
    const auto found = registry->delegates.find(name);
    return found == registry->delegates.end() ? nullptr : &found->second;
}

RuntimeType IReflectable::GetDynamicType(OvxStringViewT name) const
{
    const auto found = registry->types.find(name);
    return found == registry->types.end() ? RuntimeType() : found->second;
}

std::vector<OvxStringT> IReflectable::GetNames() const
{
    return registry->names;
}

bool IReflectable::HasProperty(OvxStringViewT name) const
{
    return GetDynamicDelegate(PrefixedName(kGetterPrefix, name)) != nullptr;
}

RuntimeType IReflectable::GetTypeOf(OvxStringViewT name) const
{
    const RuntimeType type = GetDynamicType(name);
    if (type.IsEmpty() && IsCommand(GetDynamicDelegate(name)))
        return runtime_type<void()>();
    return type;
}

// NOLINTNEXTLINE(readability-make-member-function-const): commands change the object
void IReflectable::Invoke(OvxStringViewT name)
{
    ReferenceHost::UiThread::Check();
    const DynamicDelegate* command = GetDynamicDelegate(name);
    if (!IsCommand(command))
        ThrowUnknown("command", name);

    // The copy keeps the call alive should the command register itself anew or end this object.
    const OvxUtils::RepeatingCallbackMemento callback = command->callback;
    callback.Invoke();
}

OvxUtils::Any IReflectable::ReadAny(OvxStringViewT name) const
{
    const OvxUtils::RepeatingCallbackMemento callback = FindGetter(name).callback;
    return callback.Invoke();
}

void IReflectable::WriteAny(OvxStringViewT name, const OvxUtils::Any& value)
{
    const OvxUtils::RepeatingCallbackMemento callback = FindSetter(name).callback;
    callback.Invoke(value);
}

const DynamicDelegate& IReflectable::FindGetter(OvxStringViewT name) const
{
    ReferenceHost::UiThread::Check();
    const DynamicDelegate* getter = GetDynamicDelegate(PrefixedName(kGetterPrefix, name));
    if (getter == nullptr)
        ThrowUnknown("property", name);
    return *getter;
}

const DynamicDelegate& IReflectable::FindSetter(OvxStringViewT name) const
{
    ReferenceHost::UiThread::Check();
    const DynamicDelegate* setter = GetDynamicDelegate(PrefixedName(kSetterPrefix, name));
    if (setter == nullptr)
        ThrowUnknown("writable property", name);
    return *setter;
}
