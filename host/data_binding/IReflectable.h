#pragma once

#include "host/Export.h"
#include "host/data_binding/RuntimeType.h"
#include "host/data_binding/runtime_type.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/RepeatingCallbackMemento.h"

#include <memory>
#include <stdexcept>
#include <typeinfo>
#include <vector>

/// One registered call: the callback and the record of its signature.
struct DynamicDelegate
{
    OvxUtils::RepeatingCallbackMemento callback; ///< What is called.
    RuntimeType type;                            ///< The type of the value, or of the argument.
};

/// An object whose properties and commands are reached by name.
///
/// A property N has a delegate "get_N", with a setter also "put_N", and a type record under N. A command N
/// has a delegate under N. All on the user interface's thread.
class STYLEPROPERTIES_HOST_API IReflectable
{
public:
    IReflectable(const IReflectable&) = delete;
    IReflectable& operator=(const IReflectable&) = delete;
    virtual ~IReflectable();

    /// Registers a call. A name that is registered already keeps its place and takes the new call.
    void _AddDelegate(OvxStringViewT name, OvxUtils::RepeatingCallbackMemento callback,
                      const RuntimeType& type);

    /// Records the value type of a property.
    void _AddType(OvxStringViewT name, const RuntimeType& type);

    /// Tells whether `name` is a property that can be written. False for commands and unknown names.
    [[nodiscard]] bool IsWritableProperty(OvxStringViewT name) const;

    /// The call registered under `name` ("get_N", "put_N" or a command's name); null when there is none.
    ///
    /// Borrowed from this object, valid until the name is registered again. An object with properties that
    /// come and go overrides this.
    [[nodiscard]] virtual const DynamicDelegate* GetDynamicDelegate(OvxStringViewT name) const;

    /// The type record of the property `name`; the record of nothing when there is none.
    [[nodiscard]] virtual RuntimeType GetDynamicType(OvxStringViewT name) const;

    /// The names of properties and commands, without prefixes, in order of registration.
    [[nodiscard]] std::vector<OvxStringT> GetNames() const;

    /// Tells whether `name` can be read.
    [[nodiscard]] bool HasProperty(OvxStringViewT name) const;

    /// The type record of a property, `runtime_type<void()>` for a command, the record of nothing for an
    /// unknown name.
    [[nodiscard]] RuntimeType GetTypeOf(OvxStringViewT name) const;

    /// Reads a property.
    ///
    /// @throws std::out_of_range when there is no such property, std::bad_cast when it is of another type.
    template <class T>
    [[nodiscard]] T Read(OvxStringViewT name) const
    {
        // The copy keeps the call alive should it register the name anew.
        const OvxUtils::RepeatingCallbackMemento callback = FindGetter(name).callback;
        const auto* getter = callback.TryGet<T()>();
        if (getter == nullptr)
            throw std::bad_cast();
        return (*getter)();
    }

    /// Writes a property.
    ///
    /// @throws std::out_of_range when there is no such writable property, std::bad_cast when it is of another
    /// type.
    template <class T>
    void Write(OvxStringViewT name, const T& value)
    {
        const OvxUtils::RepeatingCallbackMemento callback = FindSetter(name).callback;
        const auto* setter = callback.TryGet<void(const T&)>();
        if (setter == nullptr)
            throw std::bad_cast();
        (*setter)(value);
    }

    /// Runs a command.
    ///
    /// @throws std::out_of_range when there is no such command.
    void Invoke(OvxStringViewT name);

    /// Reads a property of any type. A property of type Any gives its value as it is.
    ///
    /// @throws std::out_of_range when there is no such property.
    [[nodiscard]] OvxUtils::Any ReadAny(OvxStringViewT name) const;

    /// Writes a property of any type. A property of type Any receives `value` itself and not a copy.
    ///
    /// @throws std::out_of_range when there is no such writable property, std::bad_cast when it is of another
    /// type.
    void WriteAny(OvxStringViewT name, const OvxUtils::Any& value);

protected:
    IReflectable();

private:
    struct Registry;

    [[nodiscard]] const DynamicDelegate& FindGetter(OvxStringViewT name) const;
    [[nodiscard]] const DynamicDelegate& FindSetter(OvxStringViewT name) const;

    std::unique_ptr<Registry> registry; ///< Names in order, delegates and type records; the host's own.
};
