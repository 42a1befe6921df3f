#pragma once

#include "host/Export.h"
#include "host/utils/Any.h"
#include "host/utils/RepeatingCallback.h"

#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace OvxUtils
{

/// A RepeatingCallback of any signature with none or one argument, kept without naming the signature.
///
/// Copies share one bound call. Kept by the data-binding framework for as long as the object it is bound to.
class RepeatingCallbackMemento
{
public:
    RepeatingCallbackMemento() = default;

    /// Keeps a callback without arguments.
    template <class Result>
    explicit RepeatingCallbackMemento(RepeatingCallback<Result()> callback)
        : bound(std::make_shared<const Bound<Result>>(std::move(callback)))
    {
    }

    /// Keeps a callback with one argument.
    template <class Result, class Argument>
    explicit RepeatingCallbackMemento(RepeatingCallback<Result(Argument)> callback)
        : bound(std::make_shared<const Bound<Result, Argument>>(std::move(callback)))
    {
    }

    /// Tells whether none is kept.
    [[nodiscard]] bool IsEmpty() const noexcept { return bound == nullptr; }

    /// The kept callback, when it has this very signature; null otherwise. Borrowed from the memento.
    template <class Signature>
    [[nodiscard]] const RepeatingCallback<Signature>* TryGet() const noexcept
    {
        if (bound == nullptr || bound->SignatureType() != typeid(Signature))
            return nullptr;
        return static_cast<const RepeatingCallback<Signature>*>(bound->Callback());
    }

    /// Calls without naming the signature; gives the result, empty for void.
    ///
    /// A call that takes an Any receives `argument` itself, not a copy; any other takes the value inside it.
    /// A call without an argument ignores `argument`. A result that is an Any is handed on as it is.
    ///
    /// @throws std::bad_cast when `argument` holds another type than the call takes.
    /// @throws std::bad_function_call when the memento is empty.
    Any Invoke(const Any& argument = Any()) const
    {
        if (bound == nullptr)
            throw std::bad_function_call();
        return bound->Invoke(argument);
    }

private:
    class BoundBase
    {
    public:
        virtual ~BoundBase() = default;
        virtual const std::type_info& SignatureType() const noexcept = 0;
        virtual const void* Callback() const noexcept = 0;
        virtual Any Invoke(const Any& argument) const = 0;
    };

    template <class Result, class... Argument>
    class Bound final : public BoundBase
    {
    public:
        explicit Bound(RepeatingCallback<Result(Argument...)> source) : callback(std::move(source)) {}

        const std::type_info& SignatureType() const noexcept override { return typeid(Result(Argument...)); }

        const void* Callback() const noexcept override { return &callback; }

        Any Invoke([[maybe_unused]] const Any& argument) const override
        {
            if constexpr (std::is_void_v<Result>)
            {
                callback(Unwrap<Argument>(argument)...);
                return Any();
            }
            else if constexpr (std::is_same_v<std::remove_cvref_t<Result>, Any>)
            {
                return callback(Unwrap<Argument>(argument)...);
            }
            else
            {
                return Any(callback(Unwrap<Argument>(argument)...));
            }
        }

    private:
        template <class Parameter>
        static const std::remove_cvref_t<Parameter>& Unwrap(const Any& argument)
        {
            if constexpr (std::is_same_v<std::remove_cvref_t<Parameter>, Any>)
                return argument;
            else
                return argument.Get<std::remove_cvref_t<Parameter>>();
        }

        RepeatingCallback<Result(Argument...)> callback;
    };

    std::shared_ptr<const BoundBase> bound;
};

} // namespace OvxUtils
