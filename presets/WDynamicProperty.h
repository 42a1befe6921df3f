#pragma once

#include "host/data_binding/runtime_type.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/RepeatingCallback.h"
#include "host/utils/RepeatingCallbackMemento.h"
#include "presets/WDynamicPropertyBase.h"

#include <functional>
#include <utility>

/// A dynamic property of the type `T`, read by asking an object for the value that belongs to the property's
/// name.
template <class T>
class WDynamicProperty final : public WDynamicPropertyBase
{
public:
    /// @param owner    who is asked; borrowed, outlives the property.
    /// @param askOwner the member of the owner that takes the property's name and gives the value.
    template <class Owner>
    WDynamicProperty(Owner& owner, T (Owner::*askOwner)(const OvxStringT&), const OvxStringT& itsName)
        : WDynamicPropertyBase(itsName,
                               {Memento([&owner, askOwner, itsName] { return (owner.*askOwner)(itsName); }),
                                runtime_type<T()>()},
                               runtime_type<const T>())
    {
    }

private:
    static OvxUtils::RepeatingCallbackMemento Memento(std::function<T()> read)
    {
        return OvxUtils::RepeatingCallbackMemento(OvxUtils::RepeatingCallback<T()>(std::move(read)));
    }
};
