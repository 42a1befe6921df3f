#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace ReferenceHost
{

/// Holds a value that is never destroyed.
///
/// For function-local statics that modules may still reach while the process ends, in whatever order they are
/// torn down: nothing is registered to run at exit, and what the value owns stays reachable.
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

    [[nodiscard]] T& operator*() noexcept { return *std::launder(reinterpret_cast<T*>(storage)); }

    [[nodiscard]] T* operator->() noexcept { return std::addressof(**this); }

private:
    alignas(T) std::byte storage[sizeof(T)];
};

} // namespace ReferenceHost
