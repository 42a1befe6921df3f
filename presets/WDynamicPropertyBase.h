#pragma once

#include "host/data_binding/IReflectable.h"
#include "host/data_binding/RuntimeType.h"
#include "host/utils/OvxStringT.h"

#include <utility>

/// A bound property that comes to be while the program runs: its name, and how it is read.
class WDynamicPropertyBase
{
public:
    WDynamicPropertyBase(const WDynamicPropertyBase&) = delete;
    WDynamicPropertyBase& operator=(const WDynamicPropertyBase&) = delete;
    virtual ~WDynamicPropertyBase() = default;

    /// The name under which the property is bound.
    [[nodiscard]] const OvxStringT& GetName() const noexcept { return name; }

    /// What reading the property calls.
    [[nodiscard]] const DynamicDelegate& GetGetter() const noexcept { return getter; }

    /// The record of the value's type, which is read-only.
    [[nodiscard]] const RuntimeType& GetType() const noexcept { return type; }

protected:
    /// Describes a property by its name, what reads it, and the type of its value.
    WDynamicPropertyBase(OvxStringT itsName, DynamicDelegate itsGetter, const RuntimeType& itsType)
        : name(std::move(itsName)), getter(std::move(itsGetter)), type(itsType)
    {
    }

private:
    OvxStringT name;
    DynamicDelegate getter;
    RuntimeType type;
};
