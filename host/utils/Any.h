#pragma once

#include "host/Export.h"

#include <concepts>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <type_traits>
#include <typeinfo>
#include <utility>

class OvxWideString;
class CLR_COLORSPEC;

namespace Styles
{
class PropertyKey;
}

namespace OvxUtils
{

/// What an Any must know of the type it holds: one table for each type.
///
/// Where the bytes of a storage say it all, there is no function: lists of values move them at every
/// insertion.
struct AnyOperations
{
    const std::type_info* type; ///< The held type.
    /// Copies one storage into a raw one; null where its bytes are a copy.
    void (*copy)(const void* source, void* destination);
    /// Moves one storage into a raw one, ending the source; null where its bytes are the value.
    void (*move)(void* source, void* destination) noexcept;
    void (*destroy)(void* storage) noexcept; ///< Ends the value in a storage; null where nothing ends.
    const void* (*get)(const void* storage) noexcept;   ///< The address of the held value.
    bool (*equal)(const void* left, const void* right); ///< `==` of the values in two storages.
    bool (*less)(const void* left, const void* right);  ///< `<` of the values in two storages.
};

/// The table of one type.
///
/// The types that styles hold are instantiated in the host library, so that their values stay usable after
/// the module that stored them was unloaded.
template <class T>
const AnyOperations* OperationsOf();

extern template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<int>();
extern template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<OvxWideString>();
extern template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<Styles::PropertyKey>();
extern template STYLEPROPERTIES_HOST_API const AnyOperations* OperationsOf<CLR_COLORSPEC>();

/// Holds nothing, or one value of any copyable type.
///
/// Small values lie inside, larger ones on the heap; no caller can tell. Two values are equal when both are
/// empty, or when they hold the same type and the held values are equal; a type without `==` is equal to no
/// other holder.
class Any
{
public:
    Any() noexcept = default;

    /// Holds a copy of `value`, or what was moved from it.
    template <class T>
    requires(!std::same_as<std::remove_cvref_t<T>, Any> &&
             std::copy_constructible<std::remove_cvref_t<T>>) explicit Any(T&& value);

    /// Holds a copy of what the other holds.
    Any(const Any& other) : operations(other.operations)
    {
        if (operations != nullptr && operations->copy != nullptr)
            operations->copy(other.storage, storage);
        else
            std::memcpy(storage, other.storage, kInlineSize);
    }

    /// Takes what the other holds and leaves it empty.
    Any(Any&& other) noexcept : operations(std::exchange(other.operations, nullptr)) { TakeStorage(other); }

    /// Holds a copy of what the other holds.
    Any& operator=(const Any& other)
    {
        if (this != &other)
            *this = Any(other);
        return *this;
    }

    /// Takes what the other holds and leaves it empty.
    Any& operator=(Any&& other) noexcept
    {
        if (this == &other)
            return *this;
        Reset();
        operations = std::exchange(other.operations, nullptr);
        TakeStorage(other);
        return *this;
    }

    ~Any() { Reset(); }

    /// Tells whether nothing is held.
    [[nodiscard]] bool IsEmpty() const noexcept { return operations == nullptr; }

    /// The type of the held value; `typeid(void)`, the type of nothing, when empty.
    [[nodiscard]] const std::type_info& GetType() const noexcept
    {
        return operations == nullptr ? typeid(void) : *operations->type;
    }

    /// The held value.
    ///
    /// @throws std::bad_cast when empty or when another type is held. No conversions are made.
    template <class T>
    [[nodiscard]] const T& Get() const
    {
        if (operations == nullptr || *operations->type != typeid(T))
            throw std::bad_cast();
        return *static_cast<const T*>(operations->get(storage));
    }

    /// The held value, or null when empty or when another type is held.
    template <class T>
    [[nodiscard]] const T* TryGet() const noexcept
    {
        if (operations == nullptr || *operations->type != typeid(T))
            return nullptr;
        return static_cast<const T*>(operations->get(storage));
    }

    /// Equal as the class describes.
    friend bool operator==(const Any& left, const Any& right)
    {
        if (left.operations == nullptr || right.operations == nullptr)
            return left.operations == right.operations;
        const bool isSameType =
            left.operations == right.operations || *left.operations->type == *right.operations->type;
        return isSameType && left.operations->equal(left.storage, right.storage);
    }

    /// Orders by the held values' `<`; an empty one stands before all others, different types by their type.
    friend bool operator<(const Any& left, const Any& right)
    {
        if (left.operations == nullptr || right.operations == nullptr)
            return left.operations == nullptr && right.operations != nullptr;
        if (*left.operations->type != *right.operations->type)
            return left.operations->type->before(*right.operations->type);
        return left.operations->less(left.storage, right.storage);
    }

private:
    template <class T>
    friend const AnyOperations* OperationsOf();

    /// Two pointers: a key, a number and a colour lie inside.
    static constexpr std::size_t kInlineSize = 2 * sizeof(void*);

    template <class T>
    static constexpr bool kIsInline = sizeof(T) <= kInlineSize &&
                                      alignof(T) <= alignof(void*) && std::is_nothrow_move_constructible_v<T>;

    /// Of an Any whose operations were taken over already.
    void TakeStorage(Any& other) noexcept
    {
        if (operations != nullptr && operations->move != nullptr)
            operations->move(other.storage, storage);
        else
            std::memcpy(storage, other.storage, kInlineSize);
    }

    void Reset() noexcept
    {
        if (operations != nullptr && operations->destroy != nullptr)
            operations->destroy(storage);
        operations = nullptr;
    }

    const AnyOperations* operations = nullptr;
    alignas(void*) std::byte storage[kInlineSize] = {};
};

template <class T>
const AnyOperations* OperationsOf()
{
    using Owner = std::unique_ptr<T>;
    static constexpr bool kInline = Any::kIsInline<T>;
    using Stored = std::conditional_t<kInline, T, Owner>;
    static constexpr auto value = [](const void* storage) noexcept -> const T*
    {
        const auto* stored = std::launder(static_cast<const Stored*>(storage));
        if constexpr (kInline)
            return stored;
        else
            return stored->get();
    };
    static constexpr bool kPlain = kInline && std::is_trivially_copyable_v<T>;
    static constexpr auto copy = [](const void* source, void* destination)
    {
        if constexpr (kInline)
            ::new (destination) T(*value(source));
        else
            ::new (destination) Owner(std::make_unique<T>(*value(source)));
    };
    static constexpr auto move = [](void* source, void* destination) noexcept
    {
        auto* stored = std::launder(static_cast<Stored*>(source));
        ::new (destination) Stored(std::move(*stored));
        std::destroy_at(stored);
    };
    static constexpr auto destroy = [](void* storage) noexcept
    { std::destroy_at(std::launder(static_cast<Stored*>(storage))); };
    static constexpr auto equal = [](const void* left, const void* right) -> bool
    {
        if constexpr (std::equality_comparable<T>)
            return *value(left) == *value(right);
        else
            return left == right;
    };
    static constexpr auto less = [](const void* left, const void* right) -> bool
    {
        if constexpr (requires(const T& a, const T& b) {
                          {
                              a < b
                              } -> std::convertible_to<bool>;
                      })
            return *value(left) < *value(right);
        else
            return std::less<const void*>()(left, right);
    };
    static const AnyOperations table{
        .type = &typeid(T),
        .copy = kPlain ? nullptr : +copy,
        .move = kPlain ? nullptr : +move,
        .destroy = kPlain ? nullptr : +destroy,
        .get = [](const void* storage) noexcept -> const void* { return value(storage); },
        .equal = equal,
        .less = less,
    };
    return &table;
}

template <class T>

requires(!std::same_as<std::remove_cvref_t<T>, Any> &&
         std::copy_constructible<std::remove_cvref_t<T>>) Any::Any(T&& value)
{
    using Held = std::remove_cvref_t<T>;
    static_assert(!std::is_pointer_v<Held> && !std::is_array_v<Held>,
                  "An Any holds values: pass a text as OvxStringT, not as a literal or a pointer");
    if constexpr (kIsInline<Held>)
        ::new (static_cast<void*>(storage)) Held(std::forward<T>(value));
    else
        ::new (static_cast<void*>(storage))
            std::unique_ptr<Held>(std::make_unique<Held>(std::forward<T>(value)));
    operations = OperationsOf<Held>();
}

} // namespace OvxUtils
