#pragma once

#include <functional>
#include <type_traits>
#include <utility>

namespace OvxUtils
{

template <class Signature>
class RepeatingCallback;

/// A call bound to its object that may be made any number of times.
///
/// Borrows the object: whoever keeps the callback drops it before the object goes. Calling an empty one
/// throws std::bad_function_call.
template <class Result, class... Arguments>
class RepeatingCallback<Result(Arguments...)>
{
public:
    RepeatingCallback() = default;

    /// Binds a member operation; a virtual one is called through the virtual table.
    template <class Object, class Member>

    requires std::is_member_function_pointer_v<Member> RepeatingCallback(Object* object, Member member)
        : call([object, member](Arguments... arguments) -> Result
               { return (object->*member)(std::forward<Arguments>(arguments)...); })
    {
    }

    /// Calls `function`; an empty one makes an empty callback.
    explicit RepeatingCallback(std::function<Result(Arguments...)> function) : call(std::move(function)) {}

    /// Tells whether there is something to call.
    explicit operator bool() const noexcept { return static_cast<bool>(call); }

    /// Makes the call.
    Result operator()(Arguments... arguments) const { return call(std::forward<Arguments>(arguments)...); }

private:
    std::function<Result(Arguments...)> call;
};

} // namespace OvxUtils
