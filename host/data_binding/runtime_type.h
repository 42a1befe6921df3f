#pragma once

#include "host/data_binding/RuntimeType.h"

#include <type_traits>
#include <typeinfo>

/// The record of the type `T`: `runtime_type<int>()` a writable int, `runtime_type<const int>()` one to read,
/// `runtime_type<void()>()` a command.
template <class T>
class runtime_type : public RuntimeType
{
public:
    runtime_type() : RuntimeType(typeid(std::remove_const_t<T>), std::is_const_v<T>) {}
};
