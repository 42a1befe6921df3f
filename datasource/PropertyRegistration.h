#pragma once

#include "host/data_binding/IReflectable.h"
#include "host/data_binding/runtime_type.h"
#include "host/utils/OvxStringViewT.h"
#include "host/utils/RepeatingCallback.h"
#include "host/utils/RepeatingCallbackMemento.h"

#include <utility>

/// @file
/// The one way in which rows get into the table of bound names, here and in derived data sources.

/// Registers the command `name`.
///
/// @param object  whose names these are.
/// @param command what the command runs; bound to `object` or to something that lives as long.
inline void RegisterCommand(IReflectable& object, OvxStringViewT name,
                            OvxUtils::RepeatingCallback<void()> command)
{
    object._AddDelegate(name, OvxUtils::RepeatingCallbackMemento(std::move(command)), runtime_type<void()>());
}

/// Registers the property `name` of type `T`: the getter under "get_" and the name, the setter under "put_"
/// and the name, and the type record under the name itself.
///
/// @param object whose names these are.
/// @param getter reads the value; bound to `object` or to something that lives as long.
/// @param setter writes the value; an empty one makes the property read-only, which its type record then
/// tells.
template <class T>
void RegisterProperty(IReflectable& object, OvxStringViewT name, OvxUtils::RepeatingCallback<T()> getter,
                      OvxUtils::RepeatingCallback<void(const T&)> setter = {})
{
    const bool writable = static_cast<bool>(setter);
    object._AddDelegate(OvxStringViewT(L"get_") + name, OvxUtils::RepeatingCallbackMemento(std::move(getter)),
                        runtime_type<T()>());
    if (writable)
        object._AddDelegate(OvxStringViewT(L"put_") + name,
                            OvxUtils::RepeatingCallbackMemento(std::move(setter)),
                            runtime_type<void(const T&)>());
    object._AddType(name, writable ? RuntimeType(runtime_type<T>()) : RuntimeType(runtime_type<const T>()));
}
