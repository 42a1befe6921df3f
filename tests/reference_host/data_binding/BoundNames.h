#pragma once

#include "host/data_binding/IReflectable.h"
#include "host/data_binding/runtime_type.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/RepeatingCallback.h"
#include "host/utils/RepeatingCallbackMemento.h"

#include <functional>
#include <utility>

/// Registers names the way data sources do, with plain functions for members.
namespace BoundNames
{

inline void AddCommand(IReflectable& object, const OvxStringT& name, std::function<void()> action)
{
    using OvxUtils::RepeatingCallback;
    object._AddDelegate(name,
                        OvxUtils::RepeatingCallbackMemento(RepeatingCallback<void()>(std::move(action))),
                        runtime_type<void()>());
}

template <class T>
void AddGetter(IReflectable& object, const OvxStringT& name, std::function<T()> get)
{
    using OvxUtils::RepeatingCallback;
    object._AddDelegate(OvxStringViewT(L"get_") + name,
                        OvxUtils::RepeatingCallbackMemento(RepeatingCallback<T()>(std::move(get))),
                        runtime_type<T()>());
}

/// A property that can only be read.
template <class T>
void AddReadOnly(IReflectable& object, const OvxStringT& name, std::function<T()> get)
{
    AddGetter<T>(object, name, std::move(get));
    object._AddType(name, runtime_type<const T>());
}

/// A property that can be read and written.
template <class T>
void AddWritable(IReflectable& object, const OvxStringT& name, std::function<T()> get,
                 std::function<void(const T&)> set)
{
    using OvxUtils::RepeatingCallback;
    AddGetter<T>(object, name, std::move(get));
    object._AddDelegate(OvxStringViewT(L"put_") + name,
                        OvxUtils::RepeatingCallbackMemento(RepeatingCallback<void(const T&)>(std::move(set))),
                        runtime_type<void(const T&)>());
    object._AddType(name, runtime_type<T>());
}

} // namespace BoundNames
