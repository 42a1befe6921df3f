#pragma once

#include <cstddef>
#include <new>

namespace TinyHost
{

/// The one `T` of the process, made on first use.
///
/// Never destroyed: modules ask for keys, texts and registries in their static initialisers and while the
/// process ends, in whatever order they are torn down.
template <class T>
[[nodiscard]] T& Lasting()
{
    alignas(T) static std::byte storage[sizeof(T)];
    static T* const made = ::new (static_cast<void*>(storage)) T();
    return *made;
}

} // namespace TinyHost
