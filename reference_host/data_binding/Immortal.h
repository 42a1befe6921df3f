#pragma once

#include <cstddef>
#include <new>
#include <utility>

namespace ReferenceHost
{

/// Holds an object that is made once and never destroyed.
///
/// For objects that every module may still need while the process ends, whatever the order in which modules
/// and static objects go: a function-local static of this type registers no destruction.
template <class T>
class Immortal
{
public:
    template <class... Arguments>
    explicit Immortal(Arguments&&... arguments)
    {
        ::new (static_cast<void*>(storage)) T(std::forward<Arguments>(arguments)...);
    }

    Immortal(const Immortal&) = delete;
    Immortal& operator=(const Immortal&) = delete;

    [[nodiscard]] T& Get() noexcept { return *std::launder(reinterpret_cast<T*>(storage)); }

private:
    alignas(T) std::byte storage[sizeof(T)];
};

} // namespace ReferenceHost
