#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace OvxUtils
{

template <class Signature>
class basic_safe_function;

/// A call that others may keep: after its maker is gone, calling a kept copy does nothing.
///
/// The maker holds the original; copies taken with Share() hold no part of the body. Making, sharing and
/// calling may happen on different threads; the owner of the original sees to it that no call runs while it
/// is destroyed.
template <>
class basic_safe_function<void()>
{
public:
    /// Identifies one original among all of the process.
    using Token = std::uintptr_t;

    /// What a keeper holds of a safe function.
    class Shared
    {
    public:
        Shared() = default;

        /// Calls the body, when the original still lives.
        void operator()() const
        {
            if (const auto locked = body.lock())
                (*locked)();
        }

        /// That of the original; 0 without one.
        [[nodiscard]] Token GetToken() const noexcept { return token; }

    private:
        friend class basic_safe_function;

        std::weak_ptr<std::function<void()>> body;
        Token token = 0;
    };

    /// The original, which owns the call.
    explicit basic_safe_function(std::function<void()> call)
        : body(std::make_shared<std::function<void()>>(std::move(call)))
    {
    }

    basic_safe_function(const basic_safe_function&) = delete;
    basic_safe_function& operator=(const basic_safe_function&) = delete;

    /// Names this one among those that live.
    [[nodiscard]] Token GetToken() const noexcept { return reinterpret_cast<Token>(body.get()); }

    /// A copy that may be called for as long as this one lives, and does nothing after it.
    [[nodiscard]] Shared Share() const
    {
        Shared shared;
        shared.body = body;
        shared.token = GetToken();
        return shared;
    }

private:
    std::shared_ptr<std::function<void()>> body;
};

} // namespace OvxUtils
